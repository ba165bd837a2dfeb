#pragma once
// Fonts need an application object. A host that is no toolkit program has none, so the first use makes one.

namespace chartdraw {

/// Makes an application object if the process has none, off screen where there is no display. A host's own
/// object is used as it is. Safe to call from any thread, any number of times; cheap after the first.
void ensureApplication();

} // namespace chartdraw
