#pragma once
// What the host owns of one kind of chart: its look, which the editors edit, and its numbers, which they
// never see.

#include "data.h"

#include <charteditors/charteditors.h>
#include <chartrender/chartrender.h>
#include <chartstyle/chartstyle.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

/// The value that a person can move while the chart is shown.
struct Dial {
    double lowest, highest, value;
};

class Example {
public:
    virtual ~Example() = default;
    Example(const Example&) = delete;
    Example& operator=(const Example&) = delete;

    virtual const char* Name() const = 0;
    virtual const char* File() const = 0; ///< what the names of its pictures begin with

    /// Opens the editor of the look. False if the person cancelled.
    virtual bool Edit() = 0;
    /// The same for what all kinds of chart share.
    bool EditLayout();
    virtual ChartRenderResult Render(ChartPictureFormat format, CChartPicture& picture) const = 0;

    /// The look and the layout as a text.
    virtual bool WriteStyle(CChartStyleText& text) const = 0;
    /// Takes a look from a text; one of another kind is OtherKind, a layout alone is taken.
    virtual ChartStyleResult ReadStyle(const QByteArray& text, CChartStyleText& report) = 0;

    /// Takes numbers in the place of its own, with a title; false if they are for another kind.
    virtual bool Take(const ChartData& /*data*/, const QString& /*title*/) { return false; }
    virtual std::optional<Dial> GetDial() const { return std::nullopt; }
    virtual void SetDial(double /*value*/) {}

protected:
    /// `kind` as CChartLayout::m_chartType.
    Example(int kind, int width, int height, const QString& title, const QString& subtitle);
    /// One title, without the line below it.
    void SetTitle(const QString& title);

    CChartLayout m_layout;
};

/// An example with a look of that kind.
template <class Look>
class LookExample : public Example {
public:
    bool WriteStyle(CChartStyleText& text) const override { return WriteChartStyle(m_look, &m_layout, text); }
    ChartStyleResult ReadStyle(const QByteArray& text, CChartStyleText& report) override {
        const auto size = static_cast<std::size_t>(text.size());
        if (ChartStyleKindOf(text.constData(), size) == ChartStyleKind::Layout)
            return ReadChartStyle(text.constData(), size, m_layout, report);
        return ReadChartStyle(text.constData(), size, m_look, &m_layout, report);
    }

protected:
    using Example::Example;

    Look m_look;
};

using Examples = std::vector<std::unique_ptr<Example>>;

/// One well-made chart of every kind.
Examples MakeExamples();

// The kinds; each stands in a file of its own.
std::unique_ptr<Example> MakePieExample();
#if __has_include(<chartrender/xy.h>)
#define DEMO_HAS_XY // its finished charts come with a header of their own
std::unique_ptr<Example> MakeXYExample();
#endif
std::unique_ptr<Example> MakeFinanceExample();
std::unique_ptr<Example> MakeAngularMeterExample();
std::unique_ptr<Example> MakeLinearMeterExample();
std::unique_ptr<Example> MakePolarExample();

constexpr std::uint32_t kPaletteColor = 0xFFFFFFFF; ///< the library chooses
constexpr std::uint32_t kTransparent = 0xFF000000;

/// A text as the libraries take it.
std::string Narrow(const QString& text);
/// Texts that live as long as what is made of them.
struct NarrowTexts {
    explicit NarrowTexts(const std::vector<QString>& texts);
    std::vector<std::string> texts;
    std::vector<const char*> pointers;
};
CChartFont Font(const char* file, double size);
CChartColor Color(std::uint32_t value);
