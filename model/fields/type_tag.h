#pragma once
// Marks of types.

namespace model {

/// An address that is the type's own, without the type information that a library would export for its value
/// classes.
template <class T>
const void* TypeTag() {
    static const char tag = 0;
    return &tag;
}

} // namespace model
