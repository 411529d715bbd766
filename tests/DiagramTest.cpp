#include "looks/MXDiagram.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"
#include "support/Thrown.h"
#include "widgets/StaticLayout.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/Font.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <random>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::drawnBy;
using moxietest::DrawnQuad;

namespace
{
class DiagramTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        diagram = static_cast<Diagram*>(
            WindowManager::getSingleton().createWindow("MoxieLook/Diagram", "chart"));
        diagram->setArea(UVector2(cegui_absdim(10), cegui_absdim(10)),
                         USize(cegui_absdim(420), cegui_absdim(260)));
        moxietest::freshSheet().addChild(diagram);
    }

    std::vector<DrawnQuad> quadsOf(const std::string& image)
    {
        return moxietest::allOf(drawnBy(*diagram), image);
    }

    Diagram* diagram = nullptr;
};
} // namespace

TEST_F(DiagramTest, ValuesRangesStackingAndTheirErrors)
{
    EXPECT_EQ(diagram->getXMin(), 0);
    EXPECT_EQ(diagram->getXMax(), 0);
    EXPECT_EQ(diagram->getYMin(), 0);
    EXPECT_EQ(diagram->getYMax(), 0);

    diagram->addMeasurement("a", "A", Colour(0xFF0000FF));
    diagram->setValue("a", 5, 3);
    diagram->setValue("a", 7, -2);
    EXPECT_EQ(diagram->getXMax(), 7);
    EXPECT_EQ(diagram->getYMin(false), -2);
    EXPECT_EQ(diagram->getYMax(false), 3);
    EXPECT_EQ(diagram->getValue("a", 5), 3);
    EXPECT_EQ(diagram->getValue("a", 6), 0.5f);
    EXPECT_EQ(diagram->getValue("a", 8), 0.0f); // past the last key
    EXPECT_EQ(diagram->getValue("a", 2), 0.0f); // before the first: no key below
    diagram->addMeasurement("line", "", Colour());
    diagram->setValue("line", 0, 0);
    diagram->setValue("line", 10, 1);
    EXPECT_FLOAT_EQ(diagram->getValue("line", 3.333f), 0.34f); // rounded up to the hundredth

    EXPECT_NE(moxietest::thrownMessage<AlreadyExistsException>(
                  [&] { diagram->addMeasurement("a", "again", Colour()); })
                  .find("Exception : measurements names must be unique."),
              std::string::npos);
    EXPECT_EQ(diagram->getMeasurementCount(), 2u);

    EXPECT_EQ(moxietest::thrownMessage<Diagram::UnknownMeasurement>(
                  [&] { diagram->setValue("nobody", 40, 1); }),
              "Exception : trying to set a value in an unknown measurement.");
    EXPECT_EQ(diagram->getXMax(), 40); // widened before the name was checked
    EXPECT_THROW(diagram->getValue("nobody", 1), Diagram::UnknownMeasurement);
    EXPECT_THROW(diagram->setValue("a", std::nanf(""), 1), InvalidRequestException);
    EXPECT_THROW(diagram->getMeasurement(2), InvalidRequestException);

    // Stacking: "b" is drawn on "a".
    diagram->addMeasurement("b", "B", Colour(0xFF00FF00));
    diagram->clearValues("line");
    diagram->setValue("a", 1, 2);
    diagram->setValue("b", 1, 3);
    // b sits on "line" (0 at 1), which sits on "a" (2 at 1).
    diagram->setValue("line", 1, 0);
    EXPECT_EQ(diagram->getModel().measurements[2]->getStackedValue(1), 5);
    EXPECT_EQ(diagram->getYMax(true), 5);
    EXPECT_EQ(diagram->getYMax(false), 3);

    // A y label widens the y range, a y mark does not.
    diagram->setYMark(80);
    EXPECT_EQ(diagram->getYMax(true), 5);
    diagram->setYLabel("fifty", 50);
    EXPECT_EQ(diagram->getYMax(true), 50);

    // Clearing "a": swap, then fold the others' ranges in (line and b span 0..1).
    diagram->clearValues("a");
    EXPECT_EQ(diagram->getModel().xMin, 0);
    EXPECT_EQ(diagram->getModel().xMax, 1);
    EXPECT_TRUE(diagram->getModel().measurements[0]->getValues().empty());
    diagram->clearValues("nobody");
    EXPECT_EQ(diagram->getModel().xMax, 1);

    // A copy of the data shares the measurements.
    const DiagramModel copy = diagram->getModel();
    EXPECT_EQ(copy.measurements[2].get(), diagram->getModel().measurements[2].get());
    EXPECT_EQ(copy.yLabels.at(50), "fifty");
}

TEST_F(DiagramTest, ChildrenLegendAndScrollBars)
{
    EXPECT_EQ(diagram->getLegendLayout(), diagram->getChild("__auto_LegendLayout_chart"));
    EXPECT_TRUE(diagram->isChild("__auto_vertScrollBar_chart"));
    EXPECT_TRUE(diagram->isChild("__auto_horzScrollBar_chart"));
    drawnBy(*diagram);
    EXPECT_FALSE(diagram->getHorzScrollbar()->isVisible()); // nothing to scroll
    EXPECT_FALSE(diagram->getVertScrollbar()->isVisible());
    EXPECT_EQ(diagram->getLegendLayout()->getPixelSize(), Sizef(100, 260));

    diagram->addMeasurement("a", "Apples", Colour(0xFFFF0000));
    diagram->addMeasurement("b", "Pears", Colour(0xFF00FF00));
    Window* item = diagram->getModel().measurements[1]->getLegendItem();
    EXPECT_EQ(item->getName(), "__auto_" + diagram->getName() + "b_legendItem");
    EXPECT_EQ(item->getChildAtIdx(1)->getText(), "Pears");
    EXPECT_EQ(item->getChildAtIdx(0)->getPixelSize(), Sizef(24, 24));
    EXPECT_EQ(item->getPixelSize(), Sizef(100, 130)); // two rows of the legend grid

    // 50 pixels a unit over 0..10 in a graph narrower than 500: the horizontal bar.
    diagram->setValue("a", 0, 1);
    diagram->setValue("a", 10, 2);
    diagram->setUnitPixelSize(Sizef(50, -1));
    drawnBy(*diagram);
    Scrollbar* horz = diagram->getHorzScrollbar();
    EXPECT_TRUE(horz->isVisible());
    EXPECT_FALSE(diagram->getVertScrollbar()->isVisible());
    EXPECT_EQ(horz->getDocumentSize(), 500);
    const Rectf graph = diagram->getGraphRect();
    EXPECT_EQ(horz->getPageSize(), graph.getWidth());
    EXPECT_EQ(horz->getPixelSize().d_height, 15);
    EXPECT_FLOAT_EQ(diagram->getUnitSize().d_height, graph.getHeight() / 2); // y fitted: 0..2
}

TEST_F(DiagramTest, ColumnsSplitAtZeroMirrorBelowItAndSitInTheGraph)
{
    diagram->addMeasurement("s", "S", Colour(0xFF3366CC));
    diagram->setValue("s", 0, 2);
    diagram->setValue("s", 1, -2);
    diagram->setValue("s", 2, -2); // a flat interval
    const auto bases = quadsOf("DiagramBase");
    const auto caps = quadsOf("DiagramCorner");
    const Rectf graph = diagram->getGraphRect();
    const float unit = diagram->getUnitSize().d_width;
    const float zero = graph.top() + graph.getHeight() / 2; // y runs -2..2
    // +2 to -2: two half-width caps, the left above the zero line (turned, as it falls),
    // the right below it, upside down; their bases have no height and draw nothing.
    ASSERT_EQ(caps.size(), 2u);
    EXPECT_EQ(caps[0].rect, Rectf(graph.left(), graph.top(), graph.left() + unit / 2, zero));
    EXPECT_TRUE(caps[0].mirroredX);
    EXPECT_FALSE(caps[0].mirroredY);
    EXPECT_EQ(caps[1].rect,
              Rectf(graph.left() + unit / 2, zero, graph.left() + unit, graph.bottom()));
    EXPECT_FALSE(caps[1].mirroredX);
    EXPECT_TRUE(caps[1].mirroredY);
    EXPECT_EQ(moxietest::argb(caps[0].colours.d_top_left), 0xFF3366CCu);
    // A see-through colour stays see-through, faded again with the window.
    diagram->addMeasurement("glass", "Glass", Colour(0x803366CC));
    diagram->setValue("glass", 0, 1);
    diagram->setValue("glass", 1, 1);
    diagram->setAlpha(0.5f);
    const auto glass = quadsOf("DiagramBase");
    ASSERT_FALSE(glass.empty());
    EXPECT_EQ(moxietest::argb(glass.back().colours.d_top_left), 0x403366CCu);
    diagram->setAlpha(1.0f);
    // The flat interval below zero: a mirrored base, and a cap of no height (none drawn).
    ASSERT_EQ(bases.size(), 1u);
    EXPECT_EQ(bases[0].rect, Rectf(graph.left() + unit, zero, graph.right(), graph.bottom()));
    EXPECT_TRUE(bases[0].mirroredY);

    // Scrolled so that the first interval lies left of the graph: it is not drawn at all.
    diagram->setUnitPixelSize(Sizef(400, -1));
    diagram->getHorzScrollbar()->setScrollPosition(420);
    drawnBy(*diagram);
    EXPECT_EQ(diagram->getDrawnIntervalCount(), 2u); // the second of each measurement
}

TEST_F(DiagramTest, LabelsAndGridLines)
{
    diagram->addMeasurement("a", "A", Colour(0xFF000000));
    diagram->setValue("a", 10, 10);
    diagram->setYLabel("half", 5);
    diagram->setXMark(5);
    diagram->setYMark(5);
    const Font& font = *diagram->getFont();
    EXPECT_EQ(diagram->getModel().yLabelWidth, font.getTextExtent("half"));

    auto textOf = [](const std::vector<DrawnQuad>& quads)
    { return moxietest::find(quads, "text").value(); };
    // The y label: right-aligned against the graph, in a box from 10 above its value.
    std::vector<DrawnQuad> quads = drawnBy(*diagram);
    Rectf graph = diagram->getGraphRect();
    Vector2f at = diagram->GetPixelFromValue(Vector2f(5, 5));
    DrawnQuad text = textOf(quads);
    EXPECT_NEAR(text.rect.right(), graph.left(), 1.5f);
    EXPECT_GE(text.rect.top(), at.d_y - 10);
    EXPECT_LE(text.rect.top(), at.d_y);
    EXPECT_EQ(moxietest::argb(text.colours.d_top_left), 0xFFFFFFFFu);

    // Grid lines: red, one pixel across.
    std::vector<DrawnQuad> marks;
    for (const DrawnQuad& q : quads)
        if (q.image == "DiagramBase" && moxietest::argb(q.colours.d_top_left) == 0xFFFF0000u)
            marks.push_back(q);
    ASSERT_EQ(marks.size(), 2u);
    // (CEGUI puts images on whole pixels.)
    EXPECT_NEAR(marks[0].rect.left(), at.d_x, 0.5f);
    EXPECT_EQ(marks[0].rect.getWidth(), 1);
    EXPECT_EQ(marks[0].rect.top(), graph.top());
    EXPECT_EQ(marks[0].rect.bottom(), graph.bottom());
    EXPECT_NEAR(marks[1].rect.top(), at.d_y, 0.5f);
    EXPECT_EQ(marks[1].rect.getHeight(), 1);
    EXPECT_EQ(marks[1].rect.left(), graph.left());
    EXPECT_EQ(marks[1].rect.right(), graph.right());

    // The x label: centred on its value in the band above the graph.
    diagram->clearYLabels();
    diagram->setXLabel("five", 5);
    EXPECT_EQ(diagram->getModel().xLabelHeight, font.getLineSpacing() + font.getBaseline());
    quads = drawnBy(*diagram);
    graph = diagram->getGraphRect();
    at = diagram->GetPixelFromValue(Vector2f(5, 5));
    text = textOf(quads);
    EXPECT_NEAR((text.rect.left() + text.rect.right()) / 2, at.d_x, 1.5f);
    EXPECT_GE(text.rect.top(), graph.top() - diagram->getModel().xLabelHeight);
    EXPECT_LE(text.rect.bottom(), graph.top());
}

namespace
{
using Spans = std::map<std::pair<argb_t, long>, std::pair<float, float>>;

// Rows each pixel column has covered, per colour: bases whole, caps as the triangle under
// their slope (rising from the image's bottom-left corner to its top-right one). Each
// column is taken from `margin` past its left edge to `margin` before its right one.
Spans coveredColumns(const std::vector<DrawnQuad>& quads, float margin)
{
    Spans spans;
    for (const DrawnQuad& q : quads)
    {
        const bool cap = q.image == "DiagramCorner";
        if (!cap && q.image != "DiagramBase")
            continue;
        const float l = q.mirroredX ? q.rect.right() : q.rect.left();
        const float r = q.mirroredX ? q.rect.left() : q.rect.right();
        const float t = q.mirroredY ? q.rect.bottom() : q.rect.top();
        const float b = q.mirroredY ? q.rect.top() : q.rect.bottom();
        for (long c = static_cast<long>(std::floor(q.rect.left() - 1)); c < q.rect.right() + 1; ++c)
        {
            const float from = std::max<float>(c + margin, q.rect.left());
            const float to = std::min<float>(c + 1 - margin, q.rect.right());
            if (!(from < to))
                continue;
            float lo = q.rect.top(), hi = q.rect.bottom();
            if (cap)
            {
                const float reach = std::max((from - l) / (r - l), (to - l) / (r - l));
                lo = std::min(b, b + reach * (t - b));
                hi = std::max(b, b + reach * (t - b));
            }
            const auto key = std::make_pair(moxietest::argb(q.colours.d_top_left), c);
            auto [at, added] = spans.try_emplace(key, lo, hi);
            if (!added)
                at->second = {std::min(at->second.first, lo), std::max(at->second.second, hi)};
        }
    }
    return spans;
}
} // namespace

TEST_F(DiagramTest, MergedColumnsCoverWhatEveryIntervalWouldHave)
{
    struct Case
    {
        const char* name;
        int measurements;
        float low, high;
        bool stacked;
    };
    std::mt19937 random(7);
    for (const Case& c : {Case{"random", 1, 0, 10, false}, Case{"stacked", 3, 0, 5, true},
                          Case{"sign-changing", 2, -5, 5, false}})
    {
        SCOPED_TRACE(c.name);
        WindowManager::getSingleton().destroyWindow(diagram);
        SetUp();
        diagram->setSuperImposed(c.stacked);
        std::uniform_real_distribution<float> value(c.low, c.high);
        for (int m = 0; m < c.measurements; ++m)
        {
            const String name = PropertyHelper<int>::toString(m);
            diagram->addMeasurement(name, name, Colour(0xFF000000 | (0x400000u * (m + 1))));
            for (int x = 0; x < 2400; ++x)
                diagram->setValue(name, static_cast<float>(x), value(random));
        }
        // Eight intervals a pixel, a width whose sums are exact: the intervals' drawing adds
        // up their positions, which drifts otherwise.
        diagram->setUnitPixelSize(Sizef(0.125f, -1));
        const auto merged = drawnBy(*diagram);
        diagram->setColumnMerging(false);
        const auto everyInterval = drawnBy(*diagram);

        const float width = diagram->getGraphRect().getWidth();
        EXPECT_LE(merged.size(), 2 * c.measurements * width + 20); // + frame, field
        EXPECT_GT(everyInterval.size(), 10 * merged.size());
        // The intervals' cover over each column, give or take a hundredth of a pixel across
        // and a hundredth of a value at zero crossings.
        const Spans inner = coveredColumns(everyInterval, 0.01f);
        const Spans outer = coveredColumns(everyInterval, -0.01f);
        const Spans got = coveredColumns(merged, 0.0f);
        EXPECT_EQ(got.size(), c.measurements * 300u); // 2,399 intervals, 8 a pixel
        for (const auto& [key, span] : got)
        {
            const auto least = inner.find(key);
            const auto most = outer.find(key);
            ASSERT_NE(most, outer.end()) << "column " << key.second;
            if (least == inner.end())
                continue; // a column the series only touches
            EXPECT_GE(span.first, most->second.first - 0.5f) << "column " << key.second;
            EXPECT_LE(span.first, least->second.first + 0.5f) << "column " << key.second;
            EXPECT_LE(span.second, most->second.second + 0.5f) << "column " << key.second;
            EXPECT_GE(span.second, least->second.second - 0.5f) << "column " << key.second;
        }
    }
}
