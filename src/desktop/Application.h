#pragma once

namespace QmChart6 {

/// Makes the process' QApplication where the host has none; it is kept until the process ends. Where no
/// display is set, or the one that is set cannot be reached, it runs unseen. Raises error 5 where the host
/// has an application object without widgets, and where it had one that has ended.
void EnsureApplication();

/// The same where the host has no application object at all; any kind that it has will do. For what shows
/// nothing, but works with parts of Qt that need one.
void EnsureAnyApplication();

/// Tells of the end of the application that one of these made or found, while its windows can still be taken
/// away.
void WhenApplicationEnds(void (*tell)());

/// Whether windows can be seen. Makes the application where there is none.
bool RunsOnADisplay();

/// The first thread that calls this is the one that may; any other gets error 5, and so does one that the
/// host's application does not live on.
void RequireFirstThread();

} // namespace QmChart6
