#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace QmChart6 {

/// The looks that come with the program: those of examples/looks.
QStringList BuiltInLookNames();
/// What a look is for, in one line.
QString PurposeOfBuiltInLook(const QString& name);
/// A look as JSON; nothing where none bears the name.
std::optional<QByteArray> BuiltInLook(const QString& name);

} // namespace QmChart6
