// A library of ours stays loaded to the end of the process, as the application object does that it may have
// made. Elsewhere the linker is told so.

#include <windows.h>

namespace {

[[maybe_unused]] const bool s_stays = [] {
    static const char here = 0;
    HMODULE library = nullptr;
    return GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN, &here,
                              &library) != FALSE;
}();

} // namespace
