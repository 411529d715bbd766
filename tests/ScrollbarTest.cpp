#include "looks/MXScrollbar.h"
#include "looks/MXScrollbarThumb.h"
#include "looks/MXSlider.h"
#include "looks/ScrollbarGeometry.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"

#include <CEGUI/WindowFactoryManager.h>
#include <CEGUI/widgets/PushButton.h>
#include <CEGUI/widgets/ScrollablePane.h>
#include <CEGUI/widgets/Thumb.h>
#include <algorithm>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::drawnBy;
using moxietest::imageNames;

namespace
{
// Frame edges of the bar are 2 pixels: on a bar 18 high the buttons are 14 square and
// the track starts 16 pixels in.
Scrollbar& bar(const char* type, float x, float y, float w, float h, float doc, float page,
               float position)
{
    auto& scrollbar = moxietest::placeAs<Scrollbar>(type, x, y, w, h);
    scrollbar.setDocumentSize(doc);
    scrollbar.setPageSize(page);
    scrollbar.setStepSize(5);
    scrollbar.setScrollPosition(position);
    return scrollbar;
}

Rectf local(const Window& window)
{
    const Rectf outer = window.getUnclippedOuterRect().get();
    const Vector2f origin = window.getParent()->getUnclippedOuterRect().get().d_min;
    return Rectf(outer.d_min - origin, outer.getSize());
}

} // namespace

TEST(ScrollbarGeometry, PlacesTheThumbForDocumentsPagesAndPositions)
{
    // Bar 200 long, buttons 14, frame 2: track 168 from 16.
    ThumbPlacement p = placeThumb(200, 14, 2, 100, 20, 40, 10);
    EXPECT_FLOAT_EQ(p.inset, 16);
    EXPECT_FLOAT_EQ(p.track, 168);
    EXPECT_FLOAT_EQ(p.length, 33.6f);
    EXPECT_FLOAT_EQ(p.free, 134.4f);
    EXPECT_FLOAT_EQ(p.position, 16 + 134.4f / 80 * 40);

    // Narrower than its buttons: no track, the thumb keeps its 10 pixels.
    p = placeThumb(30, 14, 2, 100, 20, 40, 10);
    EXPECT_FLOAT_EQ(p.track, 0);
    EXPECT_FLOAT_EQ(p.length, 10);
    EXPECT_FLOAT_EQ(p.position, 16);

    // A page as large as the document, or larger: the thumb fills the track.
    for (float page : {100.0f, 150.0f})
    {
        p = placeThumb(200, 14, 2, 100, page, 0, 10);
        EXPECT_FLOAT_EQ(p.length, 168);
        EXPECT_FLOAT_EQ(p.position, 16);
    }

    // A tiny page: the computed length is below the minimum, travel is measured before it.
    p = placeThumb(200, 14, 2, 1000, 10, 990, 10);
    EXPECT_FLOAT_EQ(p.length, 10);
    EXPECT_FLOAT_EQ(p.free, 168 - 1.68f);
}

TEST(ScrollbarGeometry, ValueFromThumbRoundTripsWithPlacement)
{
    for (float position : {0.0f, 12.5f, 40.0f, 79.0f, 80.0f})
    {
        const ThumbPlacement p = placeThumb(240, 14, 2, 100, 20, position, 10);
        EXPECT_NEAR(scrollPositionFromThumb(p.position, 240, p.inset, p.length, 100, 20), position,
                    1e-3f);
    }
    // Nothing to scroll, or no room to move: position 0, never a division by zero.
    EXPECT_EQ(scrollPositionFromThumb(16, 200, 16, 168, 100, 100), 0.0f);
    EXPECT_EQ(scrollPositionFromThumb(16, 30, 16, 10, 100, 20), 0.0f);
}

TEST(Scrollbar, LaysOutButtonsAndThumbAndMirrorsVertically)
{
    moxietest::freshSheet();
    Scrollbar& horz = bar("MoxieLook/HorizontalScrollbar", 10, 10, 200, 18, 100, 20, 40);
    Scrollbar& vert = bar("MoxieLook/VerticalScrollbar", 300, 10, 18, 200, 100, 20, 40);

    EXPECT_EQ(local(*horz.getDecreaseButton()), Rectf(2, 2, 16, 16));
    EXPECT_EQ(local(*horz.getIncreaseButton()), Rectf(184, 2, 198, 16));
    // CEGUI puts windows on whole pixels.
    const Rectf thumb = local(*horz.getThumb());
    EXPECT_NEAR(thumb.left(), 16 + 134.4f / 80 * 40, 0.5f);
    EXPECT_NEAR(thumb.getWidth(), 33.6f, 0.5f);
    EXPECT_FLOAT_EQ(thumb.top(), 2);
    EXPECT_FLOAT_EQ(thumb.getHeight(), 14);

    auto transposed = [](const Rectf& r)
    { return Rectf(r.top(), r.left(), r.bottom(), r.right()); };
    EXPECT_EQ(local(*vert.getDecreaseButton()), transposed(local(*horz.getDecreaseButton())));
    EXPECT_EQ(local(*vert.getIncreaseButton()), transposed(local(*horz.getIncreaseButton())));
    const Rectf vthumb = local(*vert.getThumb());
    EXPECT_NEAR(vthumb.top(), thumb.left(), 0.01f);
    EXPECT_NEAR(vthumb.getHeight(), thumb.getWidth(), 0.01f);
    EXPECT_FLOAT_EQ(vthumb.left(), thumb.top());

    // Resizing lays the parts out again.
    horz.setSize(USize(cegui_absdim(30), cegui_absdim(18)));
    EXPECT_FLOAT_EQ(local(*horz.getThumb()).getWidth(), 10);
    EXPECT_FLOAT_EQ(local(*horz.getThumb()).left(), 16);
}

TEST(Scrollbar, DraggingTheThumbAndClickingTrackAndButtonsMoveThePosition)
{
    moxietest::freshSheet();
    Scrollbar& horz = bar("MoxieLook/HorizontalScrollbar", 10, 10, 200, 18, 100, 20, 40);

    // Track clicks move a page (20) toward the click.
    const Rectf thumb = horz.getThumb()->getUnclippedOuterRect().get();
    moxietest::click(thumb.right() + 20, 19);
    EXPECT_FLOAT_EQ(horz.getScrollPosition(), 60);
    moxietest::click(30, 19);
    EXPECT_FLOAT_EQ(horz.getScrollPosition(), 40);

    // The arrow buttons move a step (5).
    moxietest::clickOn(*horz.getIncreaseButton());
    EXPECT_FLOAT_EQ(horz.getScrollPosition(), 45);

    // Dragging the thumb by 42 pixels moves the position by 42 / (134.4 / 80) = 25, give or
    // take the whole-pixel placement of the thumb (0.6 of a position).
    const Vector2f grab = moxietest::centreOf(*horz.getThumb());
    moxietest::pointerTo(grab.d_x, grab.d_y);
    moxietest::leftDown();
    moxietest::pointerTo(grab.d_x + 21, grab.d_y + 3);
    moxietest::pointerTo(grab.d_x + 42, grab.d_y);
    moxietest::leftUp();
    EXPECT_NEAR(horz.getScrollPosition(), 70, 0.6f);

    // Past the end the thumb stops at the end of its track.
    const Vector2f again = moxietest::centreOf(*horz.getThumb());
    moxietest::drag(again, again + Vector2f(300, 0));
    EXPECT_NEAR(horz.getScrollPosition(), 80, 0.05f);
}

TEST(Scrollbar, DrawsBackgroundThenFrameAndThumbsShowTheirGripperWhenLongEnough)
{
    moxietest::freshSheet();
    Scrollbar& horz = bar("MoxieLook/HorizontalScrollbar", 10, 10, 200, 18, 100, 20, 0);
    const std::vector<std::string> names = imageNames(drawnBy(horz));
    ASSERT_EQ(names.size(), 9u);
    EXPECT_EQ(names[0], "Background");
    EXPECT_EQ(names[1], "StaticFrameTopLeft");

    // The grip is 8 wide: a thumb of 16 shows it, one of 15 does not.
    Window& wide = moxietest::place("MoxieLook/HorizontalScrollbarThumb", 10, 50, 16, 14);
    Window& narrow = moxietest::place("MoxieLook/HorizontalScrollbarThumb", 10, 80, 15, 14);
    const auto wideQuads = drawnBy(wide);
    EXPECT_TRUE(moxietest::find(wideQuads, "HorzScrollbarGrip"));
    EXPECT_EQ(wideQuads.back().rect, Rectf(4, 3, 12, 11));
    EXPECT_FALSE(moxietest::find(drawnBy(narrow), "HorzScrollbarGrip"));
    Window& tall = moxietest::place("MoxieLook/VerticalScrollbarThumb", 60, 50, 14, 16);
    EXPECT_TRUE(moxietest::find(drawnBy(tall), "VertScrollbarGrip"));
}

TEST(Scrollbar, ThumbStatesUseTheirFramesAndColours)
{
    moxietest::freshSheet();
    auto& thumb = moxietest::placeAs<Thumb>("MoxieLook/HorizontalScrollbarThumb", 10, 10, 60, 14);
    auto fill = [&] { return drawnBy(thumb).front(); };
    auto frameCorner = [&] { return drawnBy(thumb).at(1).image; };

    EXPECT_EQ(moxietest::argb(fill().colours.d_top_left), 0xFFAFAFAF);
    EXPECT_EQ(frameCorner(), "ButtonScrollTopLeft");
    moxietest::pointerTo(40, 17);
    EXPECT_EQ(moxietest::argb(fill().colours.d_top_left), 0xFFCFD9CF);
    EXPECT_EQ(frameCorner(), "ButtonScrollFocusTopLeft");
    moxietest::leftDown();
    EXPECT_EQ(moxietest::argb(fill().colours.d_top_left), 0xFFAFAFAF);
    EXPECT_EQ(frameCorner(), "ButtonScrollFocusTopLeft");
    moxietest::leftUp();

    thumb.setEnabled(false);
    EXPECT_EQ(moxietest::argb(fill().colours.d_top_left), 0xFF999999);
    EXPECT_EQ(moxietest::argb(fill().colours.d_top_right), 0xFF999999);
    EXPECT_EQ(frameCorner(), "ButtonScrollTopLeft");
}

namespace
{
const moxietest::RecordingGeometryBuffer& tickBuffer(const MXSlider& slider)
{
    System::getSingleton().renderAllGUIContexts();
    return static_cast<const moxietest::RecordingGeometryBuffer&>(slider.tickGeometry());
}

std::vector<moxietest::DrawnQuad> drawnTicks(const MXSlider& slider)
{
    return moxietest::allOf(moxietest::decode(tickBuffer(slider)), "SliderTick");
}

// The ticks' buffer sits and is cut where CEGUI puts the slider's own.
void expectTicksPlacedWithTheSlider(MXSlider& slider)
{
    const auto& own =
        static_cast<const moxietest::RecordingGeometryBuffer&>(slider.getGeometryBuffer());
    const auto& ticks = tickBuffer(slider);
    EXPECT_EQ(ticks.translation(), own.translation());
    EXPECT_EQ(ticks.clippingRegion(), own.clippingRegion());
}
} // namespace

TEST(Slider, PlacesItsThumbAndSpacesItsTicks)
{
    moxietest::freshSheet();
    auto& slider = moxietest::placeAs<MXSlider>("MoxieLook/Slider", 10, 10, 200, 30);
    slider.setMaxValue(1.0f);
    slider.setClickStep(0.05f);
    slider.setCurrentValue(0.5f);

    // Thumb 11 x 20 on the bottom edge, travelling 189 pixels.
    const Rectf thumb = local(*slider.getThumb());
    EXPECT_EQ(thumb.getSize(), Sizef(11, 20));
    EXPECT_NEAR(thumb.left(), 94.5f, 0.5f);
    EXPECT_FLOAT_EQ(thumb.top(), 10);

    // Spacing: trunc(189 * 0.05 * 5 + 0.5) = 47; 200 / 47 -> 4 spaces, 5 ticks, from x 6.
    EXPECT_FLOAT_EQ(slider.ticks().spacing, 47);
    EXPECT_EQ(slider.ticks().count, 5);
    auto tickLefts = [&]
    {
        std::vector<float> lefts;
        for (const auto& quad : drawnTicks(slider))
            lefts.push_back(quad.rect.left());
        return lefts;
    };
    EXPECT_EQ(tickLefts(), (std::vector<float>{6, 53, 100, 147, 194}));
    for (const auto& quad : drawnTicks(slider))
        EXPECT_FLOAT_EQ(quad.rect.top(), 6);
    EXPECT_EQ(imageNames(drawnBy(slider))[0], "SliderTrackLeft");
    expectTicksPlacedWithTheSlider(slider);

    // Drawn again with nothing that places the ticks changed (a parent asks all its children
    // to redraw, the thumb moves): the track is drawn again, the ticks are kept.
    const auto& own =
        static_cast<const moxietest::RecordingGeometryBuffer&>(slider.getGeometryBuffer());
    const std::size_t trackDraws = own.resets(), tickDraws = tickBuffer(slider).resets();
    slider.invalidate(true);
    slider.setCurrentValue(0.25f);
    slider.invalidate(true);
    EXPECT_EQ(tickBuffer(slider).resets(), tickDraws);
    EXPECT_EQ(own.resets(), trackDraws + 1);
    EXPECT_EQ(tickLefts(), (std::vector<float>{6, 53, 100, 147, 194}));
    slider.setCurrentValue(0.5f);

    // Partly clipped, only the ticks in view are drawn; uncovered, the rest follow.
    Window& holder = moxietest::place("DefaultWindow", 0, 0, 90, 100);
    holder.addChild(&slider); // the slider at (10, 10) shows its left 80 pixels
    EXPECT_EQ(tickLefts(), (std::vector<float>{6, 53}));
    expectTicksPlacedWithTheSlider(slider);
    holder.setWidth(cegui_absdim(400));
    EXPECT_EQ(tickLefts(), (std::vector<float>{6, 53, 100, 147, 194}));
    // Moved, on its own or with its parent, the ticks go along without being drawn again.
    slider.setPosition(UVector2(cegui_absdim(30), cegui_absdim(20)));
    expectTicksPlacedWithTheSlider(slider);
    holder.setPosition(UVector2(cegui_absdim(15), cegui_absdim(5)));
    expectTicksPlacedWithTheSlider(slider);
    EXPECT_EQ(tickLefts(), (std::vector<float>{6, 53, 100, 147, 194}));
    // Faded, they are drawn again in the new alpha.
    slider.setAlpha(0.5f);
    for (const auto& quad : drawnTicks(slider))
        EXPECT_EQ(moxietest::argb(quad.colours.d_top_left), 0x7FFFFFFFu);
    slider.setAlpha(1.0f);
    // Drawn to a texture of its own, the slider keeps its ticks on it.
    slider.setUsingAutoRenderingSurface(true);
    EXPECT_EQ(tickLefts(), (std::vector<float>{6, 53, 100, 147, 194}));
    expectTicksPlacedWithTheSlider(slider);
    slider.setUsingAutoRenderingSurface(false);

    // A spacing that rounds to 0, or no frequency: no ticks rather than endless ones.
    slider.setClickStep(0.001f);
    slider.setTickFrequency(1);
    EXPECT_EQ(slider.ticks().count, 0);
    EXPECT_TRUE(drawnTicks(slider).empty());
    slider.setProperty("TickFrequency", "0");
    EXPECT_EQ(slider.ticks().count, 0);

    // Clicking right of the thumb steps the value up; the thumb follows.
    moxietest::click(200, 30);
    EXPECT_FLOAT_EQ(slider.getCurrentValue(), 0.501f);
}

TEST(Slider, AReversedSliderGrowsFromTheRightInPlacingClickingDraggingAndTicks)
{
    moxietest::freshSheet();
    auto& slider = moxietest::placeAs<MXSlider>("MoxieLook/Slider", 10, 10, 200, 30);
    slider.setMaxValue(1.0f);
    slider.setClickStep(0.05f);
    slider.setCurrentValue(0.25f);
    slider.setProperty("ReversedDirection", "True");
    EXPECT_NEAR(local(*slider.getThumb()).left(), 189 - 47.25f, 0.5f);

    // The ticks run from the thumb's centre at 0, now the right.
    std::vector<float> tickX;
    for (const auto& quad : drawnTicks(slider))
        tickX.push_back(quad.rect.left());
    EXPECT_EQ(tickX, (std::vector<float>{7, 54, 101, 148, 195}));

    // Left of the thumb is more.
    moxietest::click(15, 30);
    EXPECT_FLOAT_EQ(slider.getCurrentValue(), 0.3f);
    // Dragging the thumb to the right end brings the value to 0.
    const Vector2f grip = moxietest::centreOf(*slider.getThumb());
    moxietest::drag(grip, grip + Vector2f(300, 0));
    EXPECT_FLOAT_EQ(slider.getCurrentValue(), 0.0f);
    EXPECT_FLOAT_EQ(local(*slider.getThumb()).left(), 189);
}

TEST(ScrollablePane, ShowsBarsOnlyWhenTheContentNeedsThemAndScrollsIt)
{
    moxietest::freshSheet();
    auto& pane = static_cast<ScrollablePane&>(
        moxietest::place("MoxieLook/ScrollablePane", 10, 10, 200, 100));
    Window& content = moxietest::place("MoxieLook/Button", 0, 0, 150, 60);
    pane.addChild(&content);
    EXPECT_FALSE(pane.getVertScrollbar()->isVisible());
    EXPECT_FALSE(pane.getHorzScrollbar()->isVisible());
    EXPECT_EQ(pane.getViewableArea(), Rectf(2, 2, 198, 98));

    content.setSize(USize(cegui_absdim(150), cegui_absdim(400)));
    EXPECT_TRUE(pane.getVertScrollbar()->isVisible());
    EXPECT_FALSE(pane.getHorzScrollbar()->isVisible());
    EXPECT_EQ(pane.getViewableArea(), Rectf(2, 2, 180, 98));
    EXPECT_EQ(local(*pane.getVertScrollbar()), Rectf(180, 2, 198, 98));

    pane.getVertScrollbar()->setScrollPosition(100);
    EXPECT_FLOAT_EQ(content.getUnclippedOuterRect().get().top(),
                    pane.getUnclippedOuterRect().get().top() + 2 - 100);

    const std::vector<std::string> names = imageNames(drawnBy(pane));
    EXPECT_EQ(names.front(), "StaticFrameFill");
    pane.setProperty("FrameEnabled", "False");
    EXPECT_EQ(pane.getViewableArea(), Rectf(0, 0, 182, 100));
}

TEST(Scrollbar, ArrowButtonsShowTheirArrowCentredAndStayOnTop)
{
    moxietest::freshSheet();
    Scrollbar& horz = bar("MoxieLook/HorizontalScrollbar", 10, 10, 200, 18, 100, 20, 40);
    Scrollbar& vert = bar("MoxieLook/VerticalScrollbar", 300, 10, 18, 200, 100, 20, 40);
    const std::pair<PushButton*, const char*> buttons[] = {
        {horz.getDecreaseButton(), "LargeLeftArrow"},
        {horz.getIncreaseButton(), "LargeRightArrow"},
        {vert.getDecreaseButton(), "LargeUpArrow"},
        {vert.getIncreaseButton(), "LargeDownArrow"}};
    for (const auto& [button, arrowName] : buttons)
    {
        const std::string arrow = arrowName;
        EXPECT_TRUE(button->isAlwaysOnTop());
        const auto at = moxietest::find(drawnBy(*button), arrow);
        ASSERT_TRUE(at) << arrow;
        // A 16-pixel arrow centred on a 14-pixel button.
        EXPECT_EQ(at->rect, Rectf(-1, -1, 15, 15)) << arrow;
    }
}

namespace
{
// A host's bar whose track clicks go the other way: the renderer must call the override.
class ReversedBar : public MXHorzScrollbar
{
public:
    static constexpr char WidgetTypeName[] = "Host/ReversedBar";
    using MXHorzScrollbar::MXHorzScrollbar;
    float getAdjustDirectionFromPoint(const Vector2f& point) const override
    {
        return -MXHorzScrollbar::getAdjustDirectionFromPoint(point);
    }
};
} // namespace

TEST(Scrollbar, AHostSubclassOverridesWhatTheRendererAsks)
{
    moxietest::freshSheet();
    LookFactory<ReversedBar> factory;
    WindowFactoryManager::getSingleton().addFactory(&factory);
    Scrollbar& reversed = bar("Host/ReversedBar", 10, 10, 200, 18, 100, 20, 40);
    const Rectf thumb = reversed.getThumb()->getUnclippedOuterRect().get();
    moxietest::click(thumb.right() + 20, 19);
    EXPECT_FLOAT_EQ(reversed.getScrollPosition(), 20);
    moxietest::freshSheet();
    WindowFactoryManager::getSingleton().removeFactory("Host/ReversedBar");
}
