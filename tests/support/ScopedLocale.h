#pragma once

#include <QLocale>

/// The process' locale for the length of a test.
class ScopedLocale {
public:
    explicit ScopedLocale(const QLocale& locale) : before_(QLocale()) { QLocale::setDefault(locale); }
    ~ScopedLocale() { QLocale::setDefault(before_); }
    ScopedLocale(const ScopedLocale&) = delete;
    ScopedLocale& operator=(const ScopedLocale&) = delete;

private:
    QLocale before_;
};

inline QLocale CommaLocale() {
    return {QLocale::Portuguese, QLocale::Portugal};
}
