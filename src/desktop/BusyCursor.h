#pragma once

namespace QmChart6 {

/// Shows over all windows that the program is at work, as long as it lives. For what may take longer than
/// people wait without a sign, a third of a second; nobody may be asked anything meanwhile.
class BusyCursor {
public:
    BusyCursor();
    ~BusyCursor();
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;

private:
    bool shown_;
};

} // namespace QmChart6
