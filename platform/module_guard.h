#pragma once

// What an entry function needs of the process, brought up on the way in and put back on every way out.

namespace platform {

/// Holds the process ready for the library's dialogs as long as it lives: there is an application object, and
/// closing the last window does not end the host's program. Guards may nest.
class ModuleGuard {
public:
    ModuleGuard();
    ~ModuleGuard();
    ModuleGuard(const ModuleGuard&) = delete;
    ModuleGuard& operator=(const ModuleGuard&) = delete;

    /// False where the host's application object can show no widgets, or belongs to another thread than the
    /// caller's; the latter is told on the toolkit's warning channel.
    bool CanShowDialogs() const { return m_canShowDialogs; }

private:
    bool m_canShowDialogs;
    bool m_quitOnLastWindowClosed = false;
};

} // namespace platform
