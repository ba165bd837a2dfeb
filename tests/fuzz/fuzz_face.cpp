#include "editors/font/font_file.h"
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <unistd.h>

// The first byte picks the face, the rest is the font file, whose name is read or is not there. It fits and ends.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    static const std::string path = "/tmp/fuzz_face." + std::to_string(getpid());
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(data) + 1, static_cast<std::streamsize>(size) - 1);
    char name[64];
    std::memset(name, 'x', sizeof(name));
    ReadFaceName(path.c_str(), name, sizeof(name), data[0] - 1);
    if (std::memchr(name, 0, sizeof(name)) == nullptr) __builtin_trap();
    return 0;
}
