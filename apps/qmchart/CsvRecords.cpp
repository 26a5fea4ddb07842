#include "qmchart/CsvRecords.h"

#include <csv.h>

#include <new>

namespace QmChart6 {

namespace {

class Parser {
public:
    explicit Parser(char separator) {
        if (csv_init(&parser_, CSV_STRICT | CSV_STRICT_FINI | CSV_APPEND_NULL) != 0) throw std::bad_alloc();
        csv_set_delim(&parser_, static_cast<unsigned char>(separator));
    }
    ~Parser() { csv_free(&parser_); }
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;

    /// False where the quoting is wrong.
    bool Take(const char* text, qsizetype size) {
        ++line_;
        const auto count = static_cast<std::size_t>(size);
        return csv_parse(&parser_, text, count, &EndCell, &EndRecord, this) == count || !Failed();
    }
    bool Finish() { return csv_fini(&parser_, &EndCell, &EndRecord, this) == 0 || !Failed(); }

    /// What there is, and where the cell begins that is being read.
    [[nodiscard]] CsvRecords Malformed() {
        return {std::move(records), open_.cells.isEmpty() ? nextRecordLine_ : cellLine_,
                open_.cells.size() + 1};
    }
    QList<CsvRecord> records;

private:
    bool Failed() {
        if (csv_error(&parser_) == CSV_ENOMEM) throw std::bad_alloc();
        return true;
    }
    static void EndCell(void* text, std::size_t size, void* self) noexcept {
        auto* const parser = static_cast<Parser*>(self);
        parser->open_.cells.append(QByteArray(static_cast<const char*>(text), static_cast<qsizetype>(size)));
        parser->cellLine_ = parser->line_;
    }
    static void EndRecord(int /*character*/, void* self) noexcept {
        auto* const parser = static_cast<Parser*>(self);
        parser->open_.line = parser->nextRecordLine_;
        parser->records.append(std::move(parser->open_));
        parser->open_ = {};
        parser->nextRecordLine_ = parser->line_ + 1;
    }

    csv_parser parser_{};
    CsvRecord open_;
    int line_ = 0;
    int nextRecordLine_ = 1;
    int cellLine_ = 1; ///< where the next cell of a record begins

public:
    /// An empty line is no record: the next one begins behind it.
    void PassOverEmptyLine() {
        ++line_;
        nextRecordLine_ = line_ + 1;
    }
    [[nodiscard]] bool BetweenRecords() const { return nextRecordLine_ == line_ + 1; }
};

/// The end of the line that begins at `start`: behind its line feed, or its carriage return where none
/// follows.
qsizetype EndOfLine(const QByteArray& text, qsizetype start) {
    for (qsizetype i = start; i < text.size(); ++i) {
        if (text[i] == '\n') return i + 1;
        if (text[i] == '\r') return i + 1 < text.size() && text[i + 1] == '\n' ? i + 2 : i + 1;
    }
    return text.size();
}

} // namespace

CsvRecords ReadCsvRecords(const QByteArray& text, char separator, qsizetype mostRecords) {
    Parser parser(separator);
    // Line by line, so that a record and a mistake know theirs; a quoted line break goes on in the next.
    for (qsizetype start = 0; start < text.size() && parser.records.size() < mostRecords;) {
        const qsizetype end = EndOfLine(text, start);
        const bool empty = text[start] == '\r' || text[start] == '\n';
        if (empty && parser.BetweenRecords())
            parser.PassOverEmptyLine();
        else if (!parser.Take(text.constData() + start, end - start))
            return parser.Malformed();
        start = end;
    }
    const bool complete = parser.records.size() >= mostRecords || parser.Finish();
    return complete ? CsvRecords{std::move(parser.records)} : parser.Malformed();
}

} // namespace QmChart6
