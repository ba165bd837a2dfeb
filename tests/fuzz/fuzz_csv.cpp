#include "demo/csv.h"
#include <cstddef>
#include <cstdint>

// A file is read or refused with a reason; what is read has rows of one length, and each cell is a number, a
// date or neither.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const CsvTable table = ReadCsv(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (!table.error.isEmpty()) return 0;
    if (table.rows.empty()) __builtin_trap();
    for (const CsvRow& row : table.rows) {
        if (row.cells.size() != table.rows.front().cells.size()) __builtin_trap();
        for (const QString& cell : row.cells) {
            ToNumber(cell, table.separator);
            ToTime(cell);
        }
    }
    return 0;
}
