#pragma once

// The application object that widgets need. A host need not be a program of our toolkit: the libraries make
// one object at first need, whichever of the two is used first, and leave it standing, since a toolkit that
// was shut down and started again is not reliable.

namespace platform {

/// Makes the application object if the process has none, without a screen where there is no display.
/// Returns whether there is one that can show widgets: a host's own object is used as it is, and may be a
/// lesser one.
bool EnsureWidgetApplication();

} // namespace platform

namespace charteditors {

/// How the drawing library, which knows no widgets, gets an application object that the editors can use
/// later: this type is registered under its full name while this library is loaded, and making one of it
/// makes the application object if there is none.
struct ApplicationFactory {
    ApplicationFactory();
};

} // namespace charteditors
