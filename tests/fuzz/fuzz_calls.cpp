// Whole charts from calls that the input picks, one after the other, with arguments that it picks as well.

#include "tests/engine/surface/caller.h"
#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using Call = void (*)(surface::Caller&);
    static std::vector<Call> creators, others;
    if (creators.empty()) {
#define OPERATION(name)                                                                                                \
    if (!std::string_view(#name).ends_with("_destroy"))                                                                \
        (std::string_view(#name).ends_with("_create") ? creators : others).push_back([](surface::Caller& c) {          \
            c.call(&name);                                                                                             \
        });
#include "operations.inc"
#undef OPERATION
    }
    std::size_t at = 0;
    surface::Caller caller([&] { return at < size ? data[at++] * 7919u : 0u; });
    at = 0; // the arrays are made of zeros and of the beginning of the input
    for (const Call create : creators) create(caller);
    for (int calls = 0; at < size && calls < 200; ++calls) {
        others[caller.below(others.size())](caller);
        if (calls % 40 == 39) caller.drawAll();
    }
    caller.drawAll();
    return 0;
}
