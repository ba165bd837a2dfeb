// Files of labels and values, good and bad.

#include "demo/csv.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

/// "label=value" for each row, or what is wrong.
std::string Read(const QByteArray& bytes) {
    const CsvResult result = ReadCsv(bytes);
    if (!result.error.isEmpty()) {
        EXPECT_TRUE(result.data.values.empty());
        return result.error.toStdString();
    }
    std::string shown;
    for (std::size_t i = 0; i < result.data.values.size(); ++i) {
        shown += result.data.labels[i].toStdString() + '=' +
                 QString::number(result.data.values[i]).toStdString() + ' ';
    }
    return shown;
}

} // namespace

TEST(Csv, ReadsWhatPeopleHave) {
    const std::pair<QByteArray, const char*> cases[] = {
        {"a,1\nb,2\n", "a=1 b=2 "},
        {"a,1\r\nb,2", "a=1 b=2 "},
        {"a,1\rb,2\r", "a=1 b=2 "},
        {"Name,Share\na,1\n", "a=1 "},
        {"a;1,5\nb;2.5\n", "a=1.5 b=2.5 "},
        {"a\t1,5\n", "a=1.5 "},
        {" a , 1 \n\n   \nb,2e3\n", "a=1 b=2000 "},
        {"\"a, b\",1\n\"c \"\"d\"\"\",2\n", "a, b=1 c \"d\"=2 "},
        {"\"two\nlines\",1\n", "two\nlines=1 "},
        {"\xEF\xBB\xBF"
         "caf\xC3\xA9,1\n",
         "caf\xC3\xA9=1 "},
        {",1\n", "=1 "},
        {"a,0\nb,1\n", "a=0 b=1 "},
    };
    for (const auto& [bytes, expected] : cases)
        EXPECT_EQ(Read(bytes), expected) << bytes.toStdString();
}

TEST(Csv, SaysWhatIsWrongAndWhere) {
    const std::pair<QByteArray, const char*> cases[] = {
        {"", "The file has no line with a label and a value."},
        {"Name,Share\n", "The file has no line with a label and a value."},
        {"a,1\nb,two\n", "Line 2: \"two\" is not a number."},
        {"Name,Share\n\na,\n", "Line 3: \"\" is not a number."},
        {"a,1\nb,nan\n", "Line 2: \"nan\" is not a number."},
        {"a,1\nb,inf\n", "Line 2: \"inf\" is not a number."},
        {"a,1\nb,1e999\n", "Line 2: \"1e999\" is not a number."},
        {"a,1\nb,-2\n", "Line 2: -2 is below 0, and a pie has no place for it."},
        {"a,1\nb\n", "Line 2: a label and a value are wanted, and here are 1 columns."},
        {"a,1,5\n", "Line 1: a label and a value are wanted, and here are 3 columns."},
        {"\"two\nlines\",1\nb,x\n", "Line 3: \"x\" is not a number."},
        {"a,1\nb,\"2\n", "Line 2: a quote is opened and never closed."},
        {"a,0\nb,0\n", "All values are 0: there is nothing to share out."},
        {"a,1\n\xFF,2\n", "The file is not a text in UTF-8."},
        {QByteArray("a,1\n\0,2\n", 8), "The file is not a text in UTF-8."},
        {QByteArray("a,1\n").repeated(1001), "Line 1001: more than 1000 rows."},
        {QByteArray(2 << 20, ' '), "The file is larger than a megabyte."},
    };
    for (const auto& [bytes, expected] : cases)
        EXPECT_EQ(Read(bytes), expected) << bytes.left(40).toStdString();
    EXPECT_TRUE(ReadCsvFile(QTemporaryDir().path()).error.startsWith("The file cannot be read"));
}
