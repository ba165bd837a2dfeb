#pragma once

// The protocol that all entry functions follow, told once.

#include "platform/module_guard.h"
#include "platform/widgets/dialog.h"

namespace entry {

/// Edits `object` in a dialog of class `Dialog`, which is made without a parent and must have
/// - `SetObject(object, layout...)`: takes private copies of what it is given,
/// - `int DoModal()`: runs until the user closes it; anything but CDialog::kOK is a cancel,
/// - `const Object& GetObject() const`: the edited copy.
/// Returns whether the user pressed OK; else, and when an exception passes, `object` is as it was.
template <class Dialog, class Object, class... Layout>
bool RunEditor(Object& object, const Layout&... layout) {
    const platform::ModuleGuard guard;
    if (!guard.CanShowDialogs())
        return false;
    Dialog dialog;
    dialog.SetObject(object, layout...);
    if (dialog.DoModal() != CDialog::kOK)
        return false;
    object = dialog.GetObject();
    return true;
}

} // namespace entry
