#include "desktop/PrinterQueue.h"

#include <QDeadlineTimer>
#include <QLibrary>
#include <QThread>

#include <algorithm>
#include <memory>
#include <optional>
#include <span>

#include <cups/cups.h>

namespace QmChart6 {

namespace {

constexpr int FollowTime = 2000; // milliseconds
constexpr int LookTime = 20;
constexpr int StoppedPrinter = 5; // of the printing protocol

/// The calls into the printing system's library. It is loaded when something is printed, as it brings much
/// along.
struct Cups {
    Cups() : library(QStringLiteral("cups"), 2) {
        const bool complete = Find(GetNamedDest, "cupsGetNamedDest") && Find(FreeDests, "cupsFreeDests") &&
                              Find(GetOption, "cupsGetOption") && Find(GetJobs2, "cupsGetJobs2") &&
                              Find(FreeJobs, "cupsFreeJobs") && Find(LastError, "cupsLastError") &&
                              Find(LastErrorString, "cupsLastErrorString");
        isThere = complete;
    }

    QLibrary library;
    bool isThere = false;
    decltype(&cupsGetNamedDest) GetNamedDest = nullptr;
    decltype(&cupsFreeDests) FreeDests = nullptr;
    decltype(&cupsGetOption) GetOption = nullptr;
    decltype(&cupsGetJobs2) GetJobs2 = nullptr;
    decltype(&cupsFreeJobs) FreeJobs = nullptr;
    decltype(&cupsLastError) LastError = nullptr;
    decltype(&cupsLastErrorString) LastErrorString = nullptr;

private:
    template<class Function>
    bool Find(Function& function, const char* name) {
        function = reinterpret_cast<Function>(library.resolve(name)); // NOLINT(*-reinterpret-cast)
        return function != nullptr;
    }
};

const Cups& System() {
    static const Cups system;
    return system;
}

/// A queue, whose name has its set of options behind a slash where there is one.
struct Destination {
    explicit Destination(const QString& printer)
        : name(printer.section(u'/', 0, 0).toUtf8()), instance(printer.section(u'/', 1).toUtf8()) {}

    QByteArray name;
    QByteArray instance;
};

QByteArray Attribute(const cups_dest_t& queue, const char* name) {
    return System().GetOption(name, queue.num_options, queue.options);
}

/// Does something with the process' own jobs on a printer.
template<class Use>
auto WithJobs(const Destination& destination, Use&& use) {
    cups_job_t* jobs = nullptr;
    const int count =
        System().GetJobs2(CUPS_HTTP_DEFAULT, &jobs, destination.name.constData(), 1, CUPS_WHICHJOBS_ALL);
    const auto result = use(std::span<const cups_job_t>(jobs, static_cast<std::size_t>(std::max(count, 0))));
    System().FreeJobs(count, jobs);
    return result;
}

int NewestJob(const Destination& destination) {
    return WithJobs(destination, [](std::span<const cups_job_t> jobs) {
        int newest = 0;
        for (const cups_job_t& job : jobs) newest = std::max(newest, job.id);
        return newest;
    });
}

/// The state of the oldest job after that one; nothing where there is none.
std::optional<ipp_jstate_t> StateOfJobAfter(const Destination& destination, int before) {
    return WithJobs(destination, [before](std::span<const cups_job_t> jobs) {
        const cups_job_t* found = nullptr;
        for (const cups_job_t& job : jobs)
            if (job.id > before && (found == nullptr || job.id < found->id)) found = &job;
        return found == nullptr ? std::nullopt : std::optional(found->state);
    });
}

/// What is known of a job in that state: why it will not be printed, "" that it is as it should be; nothing
/// where that is still open.
std::optional<QString> Outcome(ipp_jstate_t state, const QString& printer) {
    switch (state) {
    case IPP_JSTATE_STOPPED:
    case IPP_JSTATE_CANCELED:
    case IPP_JSTATE_ABORTED:
        return QStringLiteral("the printer \"%1\" failed to print the page").arg(printer);
    case IPP_JSTATE_HELD:
    case IPP_JSTATE_COMPLETED:
        return QString();
    case IPP_JSTATE_PENDING: {
        const QString problem = QueueProblem(printer);
        return problem.isEmpty() ? std::nullopt : std::optional(problem);
    }
    case IPP_JSTATE_PROCESSING:
        break;
    }
    return std::nullopt;
}

QString FollowJobAfter(int before, const QString& printer) {
    const Destination destination(printer);
    for (const QDeadlineTimer end(FollowTime); !end.hasExpired(); QThread::msleep(LookTime)) {
        const std::optional<ipp_jstate_t> state = StateOfJobAfter(destination, before);
        // A system that keeps no record of finished jobs shows none.
        if (!state) return {};
        if (const std::optional<QString> outcome = Outcome(*state, printer)) return *outcome;
    }
    return {};
}

} // namespace

QString QueueProblem(const QString& printer) {
    if (!System().isThere) return {};
    const Destination destination(printer);
    const std::unique_ptr<cups_dest_t, void (*)(cups_dest_t*)> queue(
        System().GetNamedDest(CUPS_HTTP_DEFAULT, destination.name.constData(),
                              destination.instance.isEmpty() ? nullptr : destination.instance.constData()),
        [](cups_dest_t* found) { System().FreeDests(1, found); });
    if (!queue) return QStringLiteral("the printer \"%1\" cannot be reached").arg(printer);
    if (Attribute(*queue, "printer-is-accepting-jobs") == "false")
        return QStringLiteral("the printer \"%1\" takes no jobs").arg(printer);
    if (Attribute(*queue, "printer-state").toInt() == StoppedPrinter)
        return QStringLiteral("the printer \"%1\" is stopped").arg(printer);
    return {};
}

std::function<QString()> WatchQueue(const QString& printer) {
    if (!System().isThere) return [] { return QString(); };
    return [printer, before = NewestJob(Destination(printer))] {
        // The last answer that this thread got from the printing system is the one to the page.
        if (System().LastError() >= IPP_STATUS_REDIRECTION_OTHER_SITE)
            return QStringLiteral("the printer \"%1\" did not take the page: %2")
                .arg(printer, QString::fromUtf8(System().LastErrorString()));
        return FollowJobAfter(before, printer);
    };
}

} // namespace QmChart6
