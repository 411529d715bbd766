// Windows on CEGUI's DefaultWindow, as the stock skins make them:
// "MoxieLook/Label": text without a frame ("NormalTextColour", "DisabledTextColour",
//   "HorzFormatting", "VertFormatting");
// "MoxieLook/Static": the "StaticFrame..." frame around the "StaticFrameFill" background
//   ("FrameEnabled", "BackgroundEnabled", "FrameColours", "BackgroundColours");
// "MoxieLook/GroupBox": that frame with the window's text as a caption on its top edge;
//   children go inside the frame, under the caption;
// "MoxieLook/TabContentPane" and "MoxieLook/TabButtonPane": the tab control's page area
//   (the "TabPane..." pieces) and the strip its tabs stand on, as types of their own.
#pragma once

#include "draw/NinePieceFrame.h"
#include "draw/RedrawnWhenUncovered.h"
#include "draw/TextDrawing.h"
#include "looks/LookFactory.h"
#include "looks/MXTabPane.h"

#include <CEGUI/widgets/DefaultWindow.h>
#include <optional>

namespace CEGUI
{
namespace MoxieLook
{
class MXLabel : public RedrawnWhenUncovered<DefaultWindow>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Label";
    static const Colour DefaultNormalTextColour;
    static const Colour DefaultDisabledTextColour;

    MXLabel(const String& type, const String& name);

    //! Colours as the stock skins give them: one colour or four corners.
    void setNormalTextColour(const ColourRect& colours);
    const ColourRect& getNormalTextColour() const { return d_normalText; }
    void setDisabledTextColour(const ColourRect& colours);
    const ColourRect& getDisabledTextColour() const { return d_disabledText; }
    //! Formatting by CEGUI 0.8's names or the module's; reads back the name it was given.
    void setHorzFormatting(const String& name);
    const String& getHorzFormatting() const { return d_horz.name; }
    void setVertFormatting(const String& name);
    const String& getVertFormatting() const { return d_vert.name; }

protected:
    void populateGeometryBuffer() override;

private:
    ColourRect d_normalText{DefaultNormalTextColour};
    ColourRect d_disabledText{DefaultDisabledTextColour};
    NamedHorzFormat d_horz{HorzTextFormat::Centred, "CentreAligned"};
    NamedVertFormat d_vert{VertTextFormat::Centred, "CentreAligned"};
};

//! The framed background "MoxieLook/Static" and "MoxieLook/GroupBox" share.
class MXFramedWindow : public RedrawnWhenUncovered<DefaultWindow>
{
public:
    MXFramedWindow(const String& type, const String& name);

    void setFrameEnabled(bool enabled);
    bool isFrameEnabled() const { return d_frameEnabled; }
    void setBackgroundEnabled(bool enabled);
    bool isBackgroundEnabled() const { return d_backgroundEnabled; }
    void setFrameColours(const ColourRect& colours);
    const ColourRect& getFrameColours() const { return d_frameColours; }
    void setBackgroundColours(const ColourRect& colours);
    const ColourRect& getBackgroundColours() const { return d_backgroundColours; }

    //! Window-local: where the frame is drawn (all of the window but a caption band).
    virtual Rectf frameArea() const;
    //! The area inside the frame moved: children are placed and sized again.
    void innerAreaChanged();

protected:
    void populateGeometryBuffer() override;
    Rectf getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const override;
    void onSized(ElementEventArgs& e) override;

    NinePieceFrame d_frame;
    const Image* d_background;

private:
    bool d_frameEnabled = true;
    bool d_backgroundEnabled = true;
    ColourRect d_frameColours{Colour(0xFFFFFFFF)};
    ColourRect d_backgroundColours{Colour(0xFFFFFFFF)};
};

//! The stock "Static": the frame, and its text inside, placed by the stock skins'
//! "HorzFormatting", "VertFormatting" and "TextPadding" (pixels on every side).
class MXStaticFrame : public MXFramedWindow
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Static";

    MXStaticFrame(const String& type, const String& name);

    void setHorzFormatting(const String& name);
    const String& getHorzFormatting() const { return d_horz.name; }
    void setVertFormatting(const String& name);
    const String& getVertFormatting() const { return d_vert.name; }
    void setTextPadding(float pixels);
    float getTextPadding() const { return d_textPadding; }
    //! Window-local: inside the frame (if shown), less the padding.
    Rectf textArea() const;

protected:
    void populateGeometryBuffer() override;

private:
    NamedHorzFormat d_horz{HorzTextFormat::Left, "LeftAligned"};
    NamedVertFormat d_vert{VertTextFormat::Centred, "CentreAligned"};
    float d_textPadding = 0.0f;
};

class MXGroupBox : public MXFramedWindow
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/GroupBox";
    //! Pixels between the frame's left edge and the caption, and around the caption.
    static constexpr float CaptionIndent = 10.0f;
    static constexpr float CaptionPadding = 4.0f;
    static const Colour DefaultCaptionColour;

    MXGroupBox(const String& type, const String& name);

    //! The caption band is half a line above the frame's top edge.
    Rectf frameArea() const override;
    //! Window-local rectangle of the caption's backing, empty without a text.
    Rectf captionArea() const;

    void setNormalTextColour(const ColourRect& colours);
    const ColourRect& getNormalTextColour() const { return d_captionColour; }
    void setDisabledTextColour(const ColourRect& colours);
    const ColourRect& getDisabledTextColour() const { return d_disabledCaptionColour; }
    //! The stock skins' "BackgroundTextColours" (also "TextBackground"): a backdrop behind
    //! the caption in these colours; none until set.
    void setCaptionBackdrop(const ColourRect& colours);
    ColourRect getCaptionBackdrop() const;

protected:
    void populateGeometryBuffer() override;
    void onTextChanged(WindowEventArgs& e) override;
    void onFontChanged(WindowEventArgs& e) override;

private:
    const ColourRect& captionColours() const
    {
        return isEffectiveDisabled() ? d_disabledCaptionColour : d_captionColour;
    }

    ColourRect d_captionColour{DefaultCaptionColour};
    ColourRect d_disabledCaptionColour{MXLabel::DefaultDisabledTextColour};
    std::optional<ColourRect> d_captionBackdrop;
};

class MXTabContentPane : public RedrawnWhenUncovered<DefaultWindow>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/TabContentPane";

    MXTabContentPane(const String& type, const String& name);

    //! The stock skins' "EnableTop" and "EnableBottom" (0 or 1, as CEGUI's tab control sets
    //! them for where its tabs stand): the edge rows drawn; the sides always are.
    void setEnableTop(uint enabled);
    uint getEnableTop() const { return d_top; }
    void setEnableBottom(uint enabled);
    uint getEnableBottom() const { return d_bottom; }

protected:
    void populateGeometryBuffer() override;
    Rectf getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const override;

private:
    TabPanePieces d_pieces;
    uint d_top = 0;
    uint d_bottom = 1;
};

class MXTabButtonPane : public RedrawnWhenUncovered<DefaultWindow>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/TabButtonPane";
    //! The line the tabs stand on, along the pane's bottom.
    static constexpr float BaseLineHeight = 2.0f;

    MXTabButtonPane(const String& type, const String& name);

    //! "EnableTop" and "EnableBottom": the line along the top, along the bottom (where the
    //! tabs stand on it when above the content).
    void setEnableTop(uint enabled);
    uint getEnableTop() const { return d_top; }
    void setEnableBottom(uint enabled);
    uint getEnableBottom() const { return d_bottom; }

protected:
    void populateGeometryBuffer() override;

private:
    const Image* d_line;
    uint d_top = 0;
    uint d_bottom = 1;
};

using MXLabelFactory = LookFactory<MXLabel>;
using MXStaticFrameFactory = LookFactory<MXStaticFrame>;
using MXGroupBoxFactory = LookFactory<MXGroupBox>;
using MXTabContentPaneFactory = LookFactory<MXTabContentPane>;
using MXTabButtonPaneFactory = LookFactory<MXTabButtonPane>;

} // namespace MoxieLook
} // namespace CEGUI
