// Files of numbers, good and bad, and the kind of chart that their columns tell.

#include "demo/prices.h"
#include "tests/expect.h"
#include <QTemporaryDir>
#include <algorithm>

namespace {
std::string Join(const std::vector<double>& values) {
    QStringList texts;
    for (const double value : values) texts += QString::number(value, 'g', 12);
    return texts.join(u' ').toStdString();
}

std::string Read(const QByteArray& bytes) {
    const Understood read = Understand(ReadCsv(bytes));
    if (!read.error.isEmpty()) return read.error.toStdString();
    std::string shown;
    if (const auto* shares = std::get_if<LabelledValues>(&read.data)) {
        for (std::size_t i = 0; i < shares->values.size(); ++i)
            shown += shares->labels[i].toStdString() + '=' + Join({shares->values[i]}) + ' ';
    } else if (const auto* rows = std::get_if<Rows>(&read.data)) {
        shown = rows->times.empty() ? "rows:" : "dates " + Join(rows->times) + ':';
        for (const NamedColumn& column : rows->columns)
            shown += ' ' + column.name.toStdString() + ' ' + Join(column.values);
    } else if (const auto* prices = std::get_if<Prices>(&read.data)) {
        shown = "prices: " + Join(prices->open) + ", " + Join(prices->high) + ", " + Join(prices->low) + ", " +
                Join(prices->close) + ", " + Join(prices->volume);
    } else {
        const auto& polar = std::get<PolarRows>(read.data);
        shown = "polar: " + Join(polar.angles) + ", " + Join(polar.columns[0].values);
    }
    return shown;
}
} // namespace

TEST(Data, ReadsWhatPeopleHave) {
    const std::pair<QByteArray, const char*> cases[] = {
        {"a,1\r\nb,2", "a=1 b=2 "},
        {"a,1\rb,2\r", "a=1 b=2 "},
        {"Name,Share\na,1\n", "a=1 "},
        {"a;1,5\nb;2.5\n", "a=1.5 b=2.5 "},
        {" a , 1 \n\n   \nb,2e3\n", "a=1 b=2000 "},
        {"\"a, b\",1\n\"c \"\"d\"\"\",2\n", "a, b=1 c \"d\"=2 "},
        {"\"two\nlines\",1\n", "two\nlines=1 "},
        {"\xEF\xBB\xBF"
         "caf\xC3\xA9,1\n",
         "caf\xC3\xA9=1 "},
        {"month\tNorth\tSouth\nJan\t1,5\t-2\nFeb\t\t4\n", "rows: North 1.5 nan South -2 4"},
        {"a,1,2\nb,3,4\n", "rows: Column 2 1 3 Column 3 2 4"},
        // 719162 days from 1 January of year 1 to the epoch: 86400 seconds each.
        {"day,x\n1970-01-01,5\n02.01.1970,6\n", "dates 62135596800 62135683200: x 5 6"},
        {"Close,Date,Open,High,Low\n4,1970-01-01,1,2,3\n", "prices: 1, 2, 3, 4, "},
        {"1970-01-01,1,2,3,4,500\n", "prices: 1, 2, 3, 4, 500"},
        {"Angle,Harbour\n0,4\n30,5\n", "polar: 0 30, 4 5"},
    };
    for (const auto& [bytes, expected] : cases) EXPECT_EQ(Read(bytes), expected) << bytes.toStdString();
}

TEST(Data, SaysWhatIsWrongAndWhere) {
    const std::pair<QByteArray, const char*> cases[] = {
        {"Name,Share\n", "The file has no line with a value."},
        {"a,1\nb,two\n", "Line 2: \"two\" is not a number."},
        {"a,1\nb,1e999\n", "Line 2: \"1e999\" is not a number."},
        {"a,1\nb,-2\n", "Line 2: -2 is below 0, and a pie has no place for it."},
        {"a,1\nb\n", "Line 2: 1 columns, where the lines before have 2."},
        {"\"two\nlines\",1\nb,x\n", "Line 3: \"x\" is not a number."},
        {"a,1\nb,\"2\n", "Line 2: a quote is opened and never closed."},
        {"a,0\nb,0\n", "All values are 0: there is nothing to share out."},
        {"a,1\n\xFF,2\n", "The file is not a text in UTF-8."},
        {QByteArray("a,1\n").repeated(1001), "Line 1001: more than 1000 rows."},
        {QByteArray(2 << 20, ' '), "The file is larger than a megabyte."},
        {"a,1,2\nb,3,x\n", "Line 2: \"x\" is not a number."},
        {"date,open,close\n1970-01-01,1,2\n",
         "Prices want the columns date, open, high, low and close; there is no \"high\"."},
        {"date,open,high,low,close\nsoon,1,2,3,4\n", "Line 2: \"soon\" is not a date such as 2024-01-31."},
        {"angle,x\nnorth,1\n", "Line 2: \"north\" is not a number."},
    };
    for (const auto& [bytes, expected] : cases) EXPECT_EQ(Read(bytes), expected) << bytes.left(40).toStdString();
    EXPECT_NE(Read("1\n2\n").find("one column"), std::string::npos);
    EXPECT_TRUE(ReadCsvFile(QTemporaryDir().path()).error.startsWith("The file cannot be read"));
}

TEST(Data, PricesAreAWalkThatTheReaderKnows) {
    const Prices walked = WalkPrices(500);
    const auto read = std::get<Prices>(Understand(ReadCsv(PricesAsCsv(walked))).data);
    EXPECT_EQS((read.dates, walked.dates), (read.close, walked.close), (read.volume, walked.volume));
    ASSERT_EQ(read.dates.size(), 500U);
    for (std::size_t i = 0; i < 500; ++i) {
        EXPECT_LE(read.low[i], std::min(read.open[i], read.close[i]));
        EXPECT_GE(read.high[i], std::max(read.open[i], read.close[i]));
        EXPECT_LT(static_cast<long>(read.dates[i] / 86400) % 7, 5) << "1 January of year 1 was a Monday";
    }
}
