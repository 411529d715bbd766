// "MoxieLook/Taskbar": a dark bar along the bottom of the display ("TaskbarLeft",
// "TaskbarMiddle" tiled, "TaskbarRight"), always on top, its buttons packed from (4, 4);
// "MoxieLook/TaskbarButton": a toggle image beside a label, or a host's bitmap set.
#pragma once

#include "draw/ThreePieceBar.h"
#include "looks/LookFactory.h"
#include "widgets/Taskbar.h"
#include "widgets/TaskbarButton.h"

namespace CEGUI
{
namespace MoxieLook
{
class MXTaskbar : public Taskbar
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Taskbar";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char LeftFrameImageName[] = "TaskbarLeft";
    static constexpr char RightFrameImageName[] = "TaskbarRight";
    static constexpr char MiddleFrameImageName[] = "TaskbarMiddle";

    MXTaskbar(const String& type, const String& name);

    void layoutButtons() override;
    void setButtonPositionOffset(const Vector2f& offset) override { d_buttonOffset = offset; }
    const Vector2f& getButtonPositionOffset() const { return d_buttonOffset; }

    //! A moved bar tells its windows where their buttons are now.
    void notifyScreenAreaChanged(bool recursive = true) override;

protected:
    void populateGeometryBuffer() override;

private:
    void tellButtonRectangles();

    ThreePieceBar d_bar;
    Vector2f d_buttonOffset{4, 4};
};

class MXTaskbarButton : public TaskbarButton
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/TaskbarButton";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char NormalImageName[] = "TaskbarButtonNormal";
    static constexpr char HighlightImageName[] = "TaskbarButtonHover";
    static constexpr char SelectMarkImageName[] = "TaskbarButtonMark";
    //! Pixels between the image and the label.
    static constexpr float LabelPadding = 4.0f;
    static const Colour EnabledTextLabelColour;
    static const Colour DisabledTextLabelColour;

    MXTaskbarButton(const String& type, const String& name);

    void setCustomBitmap(const String& imagesetName, const String& imageName) override;
    bool hasCustomBitmap() const { return d_customBitmap; }

protected:
    void populateGeometryBuffer() override;
    void drawNormal();
    void drawHover();
    void drawPushed();
    void drawDisabled();

private:
    void drawPicture(const Image* image, const Image* overlay, const Colour& textColour);

    const Image* d_normal;
    const Image* d_hover;
    const Image* d_mark;
    const Image* d_select = nullptr;
    const Image* d_selectHover = nullptr;
    bool d_customBitmap = false;
};

using MXTaskbarFactory = LookFactory<MXTaskbar>;
using MXTaskbarButtonFactory = LookFactory<MXTaskbarButton>;

} // namespace MoxieLook
} // namespace CEGUI
