#include "qmchart/BuiltInLooks.h"

#include <QFile>

#include <array>

/// Resources of a library are not there by themselves.
static void LoadResources() {
    Q_INIT_RESOURCE(looks);
}

namespace QmChart6 {

namespace {

struct LookRow {
    QLatin1String name;
    const char* purpose;
};
constexpr std::array Rows{
    LookRow{QLatin1String("calm"),
            "quiet colours, hairline grid, lines that bear their names; what charts get unasked"},
    LookRow{QLatin1String("bold"), "strong colours, thick lines, a large title"},
    LookRow{QLatin1String("print"), "greys and patterns for a printer without colours"},
    LookRow{QLatin1String("dark"), "light on a dark ground, for screens"},
    LookRow{QLatin1String("slides"), "large letters and thick lines, to be read from the last row"},
    LookRow{QLatin1String("paper"), "small, for a column of a printed page"},
    LookRow{QLatin1String("dense"), "thin lines and small letters for large tables"},
    LookRow{QLatin1String("labels"), "every value written at its mark, no value axis"},
    LookRow{QLatin1String("two-axes"), "lines, the second series on an axis of its own"},
    LookRow{QLatin1String("logarithmic"), "lines on a logarithmic scale"},
};

} // namespace

QStringList BuiltInLookNames() {
    QStringList names;
    for (const LookRow& row : Rows) names.append(row.name);
    return names;
}

QString PurposeOfBuiltInLook(const QString& name) {
    for (const LookRow& row : Rows)
        if (row.name == name) return QString::fromLatin1(row.purpose);
    return {};
}

std::optional<QByteArray> BuiltInLook(const QString& name) {
    if (!BuiltInLookNames().contains(name)) return std::nullopt;
    LoadResources();
    QFile file(QStringLiteral(":/looks/%1.json").arg(name));
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    return file.readAll();
}

} // namespace QmChart6
