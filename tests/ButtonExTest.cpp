#include "looks/MXButtonEx.h"
#include "looks/MXStatics.h"
#include "module/Soundification.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/ImageManager.h>
#include <gtest/gtest.h>
#include <string_view>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::context;
using moxietest::drawnBy;
using moxietest::imageNames;
using moxietest::sounds;

namespace
{
std::vector<std::string> framed(const std::string& fill, const std::string& frame)
{
    std::vector<std::string> names{fill};
    for (const char* piece :
         {"TopLeft", "TopRight", "BottomLeft", "BottomRight", "Left", "Top", "Right", "Bottom"})
        names.push_back(frame + piece);
    return names;
}

std::vector<std::string> withText(std::vector<std::string> names)
{
    names.push_back("text");
    return names;
}

argb_t textColour(const std::vector<moxietest::DrawnQuad>& quads)
{
    return moxietest::argb(quads.back().colours.d_top_left);
}

class ButtonExTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        moxietest::freshSheet();
        sounds().clear();
        button = &moxietest::placeAs<ButtonEx>("MoxieLook/ButtonEx", 10, 10, 100, 30);
        button->setText("Go");
    }

    ButtonEx* button = nullptr;
};
} // namespace

TEST_F(ButtonExTest, EachStateDrawsItsFrameFillImagesAndTextColour)
{
    EXPECT_EQ(button->getType(), "MoxieLook/ButtonEx");
    button->AddImage("MoxieLook", "BadgeRed", 0, 0, 1.0f, MultiImage::TopRight,
                     ColourRect(Colour(0xFFFFFFFF)));
    auto normal = drawnBy(*button);
    std::vector<std::string> expected = framed("ButtonNormalFill", "ButtonNormal");
    expected.push_back("BadgeRed");
    EXPECT_EQ(imageNames(normal), withText(expected));
    EXPECT_EQ(normal[0].rect, Rectf(2, 2, 98, 28));  // the fill inside the 2-pixel edges
    EXPECT_EQ(normal[9].rect, Rectf(88, 2, 98, 12)); // the badge in the inner top-right
    EXPECT_EQ(textColour(normal), 0xFF000000u);

    moxietest::pointerTo(50, 20);
    auto hover = drawnBy(*button);
    EXPECT_EQ(imageNames(hover), imageNames(normal));
    EXPECT_EQ(textColour(hover), 0xFFFFFFFFu);

    moxietest::leftDown();
    auto pushed = drawnBy(*button);
    expected = framed("ButtonPushedFill", "ButtonPushed");
    expected.push_back("BadgeRed");
    EXPECT_EQ(imageNames(pushed), withText(expected));
    EXPECT_EQ(textColour(pushed), 0xFF3F3F3Fu);
    moxietest::leftUp();
    EXPECT_EQ(sounds(), std::vector<std::string>{"clic"});

    // Disabled: the normal imagery; pushed wins even over disabled.
    button->setEnabled(false);
    moxietest::pointerTo(300, 300);
    auto disabled = drawnBy(*button);
    EXPECT_EQ(imageNames(disabled), imageNames(normal));
    EXPECT_EQ(textColour(disabled), 0xFF3F3F3Fu);
    button->setPushedState(true);
    EXPECT_EQ(drawnBy(*button)[0].image, "ButtonPushedFill");

    button->setSize(USize(cegui_absdim(0), cegui_absdim(30)));
    EXPECT_TRUE(drawnBy(*button).empty());
}

TEST_F(ButtonExTest, MenuButtonIsAPillAndFadesWhenDisabled)
{
    Window& menu = moxietest::place("MoxieLook/MenuButton", 10, 60, 120, 24);
    menu.setText("File");
    EXPECT_EQ(menu.getType(), "MoxieLook/MenuButton");
    auto quads = drawnBy(menu);
    EXPECT_EQ(imageNames(quads),
              (std::vector<std::string>{"ButtonMenuNormalMiddle", "ButtonMenuNormalLeft",
                                        "ButtonMenuNormalRight", "text"}));
    EXPECT_EQ(quads[0].rect, Rectf(7, 0, 113, 24)); // between the 7-pixel caps, full height

    menu.setEnabled(false);
    quads = drawnBy(menu);
    EXPECT_EQ(quads[0].image, "ButtonMenuDesactivedMiddle");
    EXPECT_EQ(moxietest::argb(quads[0].colours.d_top_left), 0x4C000000u);
}

TEST_F(ButtonExTest, VerticalTextAlignmentTexts)
{
    button->setSize(USize(cegui_absdim(100), cegui_absdim(80)));
    auto textTop = [&] { return drawnBy(*button).back().rect.top(); };
    button->setProperty("VerticalTextAlignment", "Top");
    EXPECT_EQ(button->getProperty("VerticalTextAlignment"), "Top");
    const float top = textTop();
    button->setProperty("VerticalTextAlignment", "Middle");
    const float middle = textTop();
    button->setProperty("VerticalTextAlignment", "Bottom");
    const float bottom = textTop();
    EXPECT_LT(top, 10.0f);
    EXPECT_GT(middle, top + 20);
    EXPECT_GT(bottom, middle + 20);
    for (const char* other : {"", "top", "MIDDLE", "Centre"})
    {
        button->setProperty("VerticalTextAlignment", other);
        EXPECT_EQ(button->getProperty("VerticalTextAlignment"), "Bottom") << other;
        EXPECT_FLOAT_EQ(textTop(), bottom) << other;
    }
}

TEST_F(ButtonExTest, DragStartsPastTheThresholdAndEndsInADropOrACancel)
{
    Window& target = moxietest::place("MoxieLook/StaticText", 300, 300, 100, 60);
    Window& inner = moxietest::place("MoxieLook/TextItem", 0, 0, 50, 20);
    target.addChild(&inner);
    button->SetDragAuthorized(true);
    button->AddDropTarget(&target);
    int started = 0, cancelled = 0;
    Window* droppedSource = nullptr;
    button->subscribeEvent(EventDragStarted, [&] { ++started; });
    button->subscribeEvent(EventDropCancelled, [&] { ++cancelled; });
    target.subscribeEvent(EventDropped, [&](const EventArgs& a)
                          { droppedSource = static_cast<const DragEventArgs&>(a).source; });

    // Fifty 1-pixel steps make 50: a click. The 51st passes the threshold.
    moxietest::pointerTo(20, 20);
    moxietest::leftDown();
    for (int i = 1; i <= 50; ++i)
        moxietest::pointerTo(20, 20 + (i % 2));
    EXPECT_FALSE(button->IsDragging());
    moxietest::leftUp();
    EXPECT_EQ(sounds(), std::vector<std::string>{"clic"});

    moxietest::leftDown();
    for (int i = 1; i <= 51; ++i)
        moxietest::pointerTo(20, 20 + (i % 2));
    EXPECT_TRUE(button->IsDragging());
    EXPECT_EQ(started, 1);

    // Released where it started, over no target: a cancel.
    moxietest::leftUp();
    EXPECT_EQ(cancelled, 1);
    EXPECT_EQ(sounds().back(), "meup");

    // One step of 8 pixels (64) is enough on its own; the button follows the pointer.
    sounds().clear();
    moxietest::pointerTo(20, 20);
    moxietest::leftDown();
    moxietest::pointerTo(28, 20);
    ASSERT_TRUE(button->IsDragging());
    moxietest::pointerTo(328, 315);
    EXPECT_EQ(button->getUnclippedOuterRect().get().d_min, Vector2f(318, 305));
    moxietest::leftUp();
    EXPECT_EQ(droppedSource, button);
    EXPECT_EQ(sounds(), std::vector<std::string>{"cloc"});
    EXPECT_EQ(button->getUnclippedOuterRect().get().d_min, Vector2f(10, 10));
    EXPECT_FALSE(button->IsDragging());
    EXPECT_FALSE(button->isDisabled());

    // Over nothing registered: cancelled, with its sound, back at the start.
    sounds().clear();
    moxietest::pointerTo(20, 20);
    moxietest::leftDown();
    moxietest::pointerTo(40, 20);
    moxietest::pointerTo(600, 100);
    moxietest::leftUp();
    EXPECT_EQ(cancelled, 2);
    EXPECT_EQ(sounds(), std::vector<std::string>{"meup"});
    EXPECT_EQ(button->getUnclippedOuterRect().get().d_min, Vector2f(10, 10));

    // RemoveDropTarget silences the target but keeps it: no cancel, a drop to nobody.
    droppedSource = nullptr;
    button->RemoveDropTarget(&target);
    moxietest::pointerTo(20, 20);
    moxietest::leftDown();
    moxietest::pointerTo(40, 20);
    moxietest::pointerTo(350, 330);
    moxietest::leftUp();
    EXPECT_EQ(droppedSource, nullptr);
    EXPECT_EQ(cancelled, 2);
}

TEST_F(ButtonExTest, SoundsNeedAVisibleWindowAndARegisteredHook)
{
    // The right button plays nothing.
    moxietest::pointerTo(50, 20);
    context().injectMouseButtonDown(RightButton);
    context().injectMouseButtonUp(RightButton);
    EXPECT_TRUE(sounds().empty());

    MXSoundification& sound = MXSoundification::GetInstance();
    Window& parent = moxietest::place("DefaultWindow", 200, 200, 100, 100);
    Window& inside = moxietest::place("MoxieLook/ButtonEx", 0, 0, 50, 20);
    parent.addChild(&inside);
    parent.hide();
    sound.PlaySound(&inside, "clic");
    EXPECT_TRUE(sounds().empty());
    parent.show();
    sound.PlaySound(&inside, "clic");
    EXPECT_EQ(sounds(), std::vector<std::string>{"clic"});

    // A fresh instance has no hook: a host that plays no sounds still gets its clicks.
    sounds().clear();
    MXSoundification::Destroy();
    MXSoundification& fresh = MXSoundification::GetInstance();
    EXPECT_NO_THROW(fresh.PlaySound(&inside, "clic"));
    fresh.RegisterHook(nullptr);
    moxietest::pointerTo(50, 20);
    EXPECT_NO_THROW(moxietest::leftDown());
    EXPECT_NO_THROW(moxietest::leftUp());
    EXPECT_TRUE(sounds().empty());
    moxietest::hearSounds();
}

TEST_F(ButtonExTest, ExtraImagesSitOnAStaticImageAndFollowItsSize)
{
    auto& plain = moxietest::placeAs<StaticImage>("MoxieLook/StaticImage", 10, 100, 64, 48);
    auto& image = moxietest::placeAs<StaticImageEx>("MoxieLook/StaticImageEx", 100, 50, 64, 48);
    for (Window* w : {static_cast<Window*>(&plain), static_cast<Window*>(&image)})
        w->setProperty("Image", "MoxieLook/IconFolder");
    EXPECT_EQ(imageNames(drawnBy(image)), imageNames(drawnBy(plain)));
    EXPECT_EQ(drawnBy(image)[0].rect, drawnBy(plain)[0].rect);

    image.AddImage(&ImageManager::getSingleton().get("MoxieLook/BadgeGreen"), -1, 1, 1.0f,
                   MultiImage::TopRight, ColourRect(Colour(0xFFFFFFFF)));
    image.AddImage("MoxieLook", "IconStar", 0, 0, 0.5f, MultiImage::alignmentFromName("Center"),
                   ColourRect(Colour(0xFFFFFFFF)));
    auto quads = drawnBy(image);
    ASSERT_EQ(imageNames(quads),
              (std::vector<std::string>{"IconFolder", "BadgeGreen", "IconStar"}));
    EXPECT_EQ(quads[1].rect, Rectf(53, 1, 63, 11));
    EXPECT_EQ(quads[2].rect, Rectf(28, 20, 36, 28));

    // Resized, the extra images are placed against the new area in the same pass.
    image.setSize(USize(cegui_absdim(100), cegui_absdim(60)));
    quads = drawnBy(image);
    EXPECT_EQ(quads[1].rect, Rectf(89, 1, 99, 11));
    EXPECT_EQ(quads[2].rect, Rectf(46, 26, 54, 34));

    // With a frame the local rectangles start inside it, not at the screen position.
    image.setProperty("FrameEnabled", "True");
    EXPECT_EQ(image.GetLocalInnerRect(), Rectf(2, 2, 98, 58));
    EXPECT_EQ(image.GetImageRect(0), Rectf(87, 3, 97, 13));

    EXPECT_TRUE(image.HasImage("MoxieLook", "IconStar"));
    image.SetVisibilityImage("MoxieLook", "IconStar", false);
    EXPECT_EQ(imageNames(drawnBy(image)).back(), "BadgeGreen");
    image.RemoveImage("MoxieLook", "BadgeGreen");
    EXPECT_EQ(image.GetImage(0), &ImageManager::getSingleton().get("MoxieLook/IconStar"));
    EXPECT_EQ(image.GetImage(5), nullptr);
    EXPECT_THROW(
        image.AddImage("MoxieLook", "NoSuchImage", 0, 0, 1, MultiImage::None, ColourRect()),
        UnknownObjectException);
    image.ClearImages();
    EXPECT_EQ(image.GetImageCount(), 0u);
}

TEST(MultiImage, AlignmentNamesAndPlacement)
{
    EXPECT_EQ(MultiImage::alignmentFromName("BottomRight"), MultiImage::BottomRight);
    EXPECT_EQ(MultiImage::alignmentFromName("Center"), MultiImage::Centre);
    EXPECT_EQ(MultiImage::alignmentFromName("bottomright"), MultiImage::None);
    EXPECT_EQ(MultiImage::nameOf(MultiImage::Left), "Left");
    EXPECT_EQ(static_cast<int>(MultiImage::None), 9);

    const Rectf inner(10, 10, 110, 60);
    EXPECT_EQ(MultiImage::placement(inner, Sizef(16, 16), 0, 0, 1, MultiImage::BottomLeft),
              Rectf(10, 44, 26, 60));
    EXPECT_EQ(MultiImage::placement(inner, Sizef(16, 16), 3, -2, 2, MultiImage::Right),
              Rectf(81, 17, 113, 49));
    EXPECT_EQ(MultiImage::placement(inner, Sizef(16, 16), 5, 6, 1, MultiImage::None),
              Rectf(15, 16, 31, 32));
}

TEST_F(ButtonExTest, InnerRectanglesAreLocalAndExtraImagesStayPutWhenClipped)
{
    // A parent at (100, 50) showing only the left 40 pixels of the button.
    Window& parent = moxietest::place("DefaultWindow", 100, 50, 40, 100);
    auto& clipped = moxietest::placeAs<ButtonEx>("MoxieLook/ButtonEx", 0, 0, 100, 30);
    parent.addChild(&clipped);
    clipped.AddImage("MoxieLook", "BadgeRed", 0, 0, 1.0f, MultiImage::Left,
                     ColourRect(Colour(0xFFFFFFFF)));
    const Rectf placed = clipped.GetImageRect(0);

    EXPECT_EQ(clipped.GetLocalUnclippedInnerRect(), Rectf(2, 2, 98, 28));
    EXPECT_EQ(clipped.GetLocalInnerRect(), Rectf(2, 2, 40, 28));
    EXPECT_EQ(static_cast<MultiImage&>(clipped).MyGetInnerRect(), clipped.getInnerRectClipper());
    clipped.setSize(USize(cegui_absdim(100), cegui_absdim(30))); // placed again: same place
    EXPECT_EQ(clipped.GetImageRect(0), placed);
    EXPECT_EQ(placed, Rectf(2, 10, 12, 20));
    // Right-aligned: against the whole inner rectangle, not the 40 pixels that show.
    clipped.AddImage("MoxieLook", "BadgeRed", 0, 0, 1.0f, MultiImage::Right,
                     ColourRect(Colour(0xFFFFFFFF)));
    EXPECT_EQ(clipped.GetImageRect(1), Rectf(88, 10, 98, 20));
    clipped.setSize(USize(cegui_absdim(100), cegui_absdim(30)));
    EXPECT_EQ(clipped.GetImageRect(1), Rectf(88, 10, 98, 20));

    auto& image = moxietest::placeAs<StaticImageEx>("MoxieLook/StaticImageEx", 0, 0, 80, 40);
    parent.addChild(&image);
    image.setProperty("FrameEnabled", "True");
    EXPECT_EQ(image.GetLocalUnclippedInnerRect(), Rectf(2, 2, 78, 38));
    EXPECT_EQ(image.GetLocalInnerRect(), Rectf(2, 2, 40, 38));
    EXPECT_EQ(static_cast<MultiImage&>(image).MyGetInnerRect(), image.getInnerRectClipper());
}

TEST_F(ButtonExTest, LooksSetTheArrowCursor)
{
    const Image* arrow = &ImageManager::getSingleton().get("MoxieLook/MouseArrow");
    for (const char* type : {"MoxieLook/ButtonEx", "MoxieLook/MenuButton", "MoxieLook/StaticText",
                             "MoxieLook/StaticLayout", "MoxieLook/TextItem"})
        EXPECT_EQ(moxietest::place(type, 0, 0, 10, 10).getMouseCursor(), arrow) << type;
}

TEST_F(ButtonExTest, StandardizedFrameTurnsStandardImageryOffAndSetsMaskedStates)
{
    button->SetStandardizedFrame("MoxieLook", "ToolButton", 1 | 4);
    EXPECT_FALSE(button->isStandardImageryEnabled());
    EXPECT_TRUE(button->isNormalImageEnabled());
    EXPECT_FALSE(button->isHoverImageEnabled());
    EXPECT_TRUE(button->isPushedImageEnabled());
    EXPECT_FALSE(button->isDisabledImageEnabled());
    auto quads = drawnBy(*button);
    EXPECT_EQ(imageNames(quads), (std::vector<std::string>{"ToolButtonNormal", "text"}));
    EXPECT_EQ(quads[0].rect, Rectf(0, 0, 100, 30)); // stretched over the whole button

    button->SetStandardizedFrame("MoxieLook", "ToolButton", 2 | 8);
    EXPECT_EQ(button->getHoverImage().getImage()->getName(), "MoxieLook/ToolButtonFocus");
    EXPECT_EQ(button->getDisabledImage().getImage()->getName(), "MoxieLook/ToolButtonDisabled");
    EXPECT_EQ(button->getPushedImage().getImage()->getName(), "MoxieLook/ToolButtonClicked");
    EXPECT_THROW(button->SetStandardizedFrame("MoxieLook", "NoSuchFrame", 1),
                 UnknownObjectException);
}
