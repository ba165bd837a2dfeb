#pragma once

#include <initializer_list>
#include <string>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace recorder {
extern const int operationCount;

/// One running operation: the outermost one is written down, those that the library itself calls are not.
class Call {
public:
    Call(const char* name, std::initializer_list<std::string> arguments);
    ~Call();
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
};

std::string text(bool value);
std::string text(int value);
std::string text(double value);
std::string text(const char* value);

template <typename Element> std::string array(const Element* elements, int count) {
    std::string shown = "[";
    for (int i = 0; elements && i < count; ++i) shown += (i > 0 ? ", " : "") + text(elements[i]);
    return shown + "]";
}

std::string handle(const char* kind, const void* handle);

/// Numbers a handle that an operation gave out. It ends with `from`, the handle that it was got from.
void number(const char* kind, const void* handle, const void* from);

template <typename Handle> Handle* given(const char* kind, Handle* handle, const void* from) {
    number(kind, handle, from);
    return handle;
}

/// Ends the numbers of a handle and of all that were got from it: the library may use their addresses again.
void forget(const void* handle);

template <typename Function> Function real(const char* name) {
#ifdef _WIN32
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(LoadLibraryA("libchartdraw.dll"), name)));
#else
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
#endif
}
} // namespace recorder
