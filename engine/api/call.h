#pragma once
// How an operation of the flat surface runs: it finds the object behind its handle, tells it that it is about
// to be changed, and lets nothing out that is thrown. One that cannot be carried out, because the handle is
// null or of another kind, memory is short or the process ends, does nothing and gives null, 0 or false.

#include "engine/object/object.h"
#include "engine/paint/colour.h"
#include "engine/text/application.h"

#include <exception>
#include <type_traits>

namespace chartdraw {

/// What is thrown is want of memory; the C program behind the surface could not catch it.
template <class Body, class Result = std::invoke_result_t<Body>>
Result guarded(Body body) {
    const ProcessUse use;
    if (use) {
        try {
            return body();
        } catch (const std::exception&) { // NOLINT(bugprone-empty-catch)
        }
    }
    return Result();
}

template <class Body, class Result, class T>
T argumentOf(Result (Body::*)(T&) const);

/// Calls `body`, a function of a T&, with the T behind a handle. What pictures show stays as it is.
template <class Handle, class Body>
auto use(Handle* handle, Body body) {
    using T = decltype(argumentOf(&Body::operator()));
    using Result = std::invoke_result_t<Body, T&>;
    return guarded([&]() -> Result {
        T* target = object<std::remove_const_t<T>>(handle);
        return target != nullptr ? body(*target) : Result();
    });
}

/// The same to ask it only.
template <class Handle, class Body>
auto read(Handle* handle, Body body) {
    static_assert(std::is_const_v<decltype(argumentOf(&Body::operator()))>);
    return use(handle, body);
}

/// The same to change it: every picture that shows it is stale from here on.
template <class Handle, class Body>
auto edit(Handle* handle, Body body) {
    return use(
        handle,
        [&](decltype(argumentOf(&Body::operator()))& target) {
            target.changed();
            return body(target);
        });
}

/// A handle to a new T; null where memory does not suffice.
template <class T, class Handle, class... Args>
Handle* create(Args... args) {
    return guarded([&] { return handle<Handle>(new T(args...)); });
}

/// The same for a chart, with its size, background, edge and raised effect.
template <class T, class Handle>
Handle* createChart(int width, int height, int background, int edge, int effect) {
    return create<T, Handle>(width, height, orDefault(static_cast<Colour>(background), kBackgroundColour),
                             orDefault(static_cast<Colour>(edge), kTransparent), effect);
}

} // namespace chartdraw
