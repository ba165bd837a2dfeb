#pragma once
// Fonts need an application object. A host that is no toolkit program has none, so the first use makes one.

namespace chartdraw {

/// Makes an application object if the process has none. A host's own object is used as it is. Where a library
/// of this family has registered a meta type "charteditors::ApplicationFactory", creating one of these makes
/// the object, so that widgets will work too; otherwise it is one without a screen. Safe to call from any
/// thread, any number of times; cheap after the first. A painter looks at the application object, so this
/// must be called before one is made: by whatever makes a chart.
void ensureApplication();

/// Ensures an application object and tells whether it can do text: a host's own object without a GUI cannot.
bool textAvailable();

/// Counts the application objects that this process has had. Fonts that were loaded under an earlier one are
/// gone: a host may end its object and make another.
int applicationCount();

/// Held by every operation while it runs. Static objects, the toolkit's among them, are destroyed while the
/// process ends, and a thread may still be drawing then: the end waits a while for the operations at work,
/// and none begins after it.
class ProcessUse {
public:
    ProcessUse();
    ~ProcessUse();
    ProcessUse(const ProcessUse&) = delete;
    ProcessUse& operator=(const ProcessUse&) = delete;

    /// Whether the operation may run.
    explicit operator bool() const { return m_granted; }

private:
    bool m_granted;
};

/// Makes sure that the end of the process is noticed before what exists by now is destroyed: to be called
/// after anything that may have made static objects.
void watchForTheEnd();

} // namespace chartdraw
