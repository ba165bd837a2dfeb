#include "demo/csv.h"

#include <cstddef>
#include <cstdint>

// A file is read or refused with a reason; what is read has a label for each value.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const CsvResult result =
        ReadCsv(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (result.error.isEmpty() &&
        (result.data.values.empty() || result.data.labels.size() != result.data.values.size()))
        __builtin_trap();
    return 0;
}
