#pragma once

#include "database/Connection.h"
#include "database/Recordset.h"

#include <memory>
#include <optional>

namespace QmChart6 {

/// An open database; it must be there. Recordsets are used while it is open.
///
/// The place is a file's path, or "postgresql://user@host:port/database/schema". Raises 3024 (not there),
/// 3044 (no valid path), 70 (no rights), 3343 (something else, or damaged), 3050 (kept locked by others for 5
/// seconds), 61 (disk full), 3151 (no server), 3146 (whatever else the database refuses).
class Database {
public:
    /// The schema must outlive the database.
    Database(const QString& location, const Schema& schema);

    /// Raises 3078 where the table is not there.
    [[nodiscard]] Recordset OpenRecordset(const QString& table);
    /// Nothing where the database lacks the table.
    [[nodiscard]] std::optional<Recordset> OpenRecordsetIfThere(const QString& table);

    /// As long as it lives, what is written appears to others together; each record that was written stays,
    /// whatever fails after it. Writers take turns at the table from the start, so that what is sought and
    /// not found cannot be added by somebody else.
    class Writing {
    public:
        Writing(Database& database, const QString& firstTable);
        ~Writing();
        Writing(const Writing&) = delete;
        Writing& operator=(const Writing&) = delete;
        /// Makes the writes durable. Raises as a write does.
        void Finish();
        /// Takes all that was written back, where an error is already on its way.
        void TakeBack() noexcept;

    private:
        Connection& connection_;
        bool open_ = true;
    };

    /// As long as it lives, what is read is of one moment. Kept short: it holds writers up.
    class Reading {
    public:
        explicit Reading(Database& database);
        ~Reading();
        Reading(const Reading&) = delete;
        Reading& operator=(const Reading&) = delete;

    private:
        Connection& connection_;
    };

private:
    const Schema& schema_;
    std::unique_ptr<Connection> connection_;
};

} // namespace QmChart6
