// A line of text without frame: a label for lists, legends and node counters. One colour,
// horizontal formatting, vertically centred; it can size itself to its text.
#pragma once

#include "draw/RedrawnWhenUncovered.h"
#include "draw/TextDrawing.h"

#include <CEGUI/Window.h>

namespace CEGUI
{
namespace MoxieLook
{
class TextItem : public RedrawnWhenUncovered<Window>
{
public:
    //! Room left of and right of the text, in pixels.
    static constexpr float TextPadding = 2.0f;

    TextItem(const String& type, const String& name);

    const Colour& getTextColour() const { return d_textColour; }
    void setTextColour(const Colour& colour);
    HorzTextFormat getTextFormatting() const { return d_formatting; }
    void setTextFormatting(HorzTextFormat formatting);

    //! The size the text needs, padding included, at the current width for wrapped text.
    virtual Sizef getContentSize() const;
    //! Sets the window's pixel size to its content size.
    void sizeToFit();
    //! While set, the item sizes itself to its text whenever text or font change.
    bool isAutoSized() const { return d_autoSized; }
    void setAutoSized(bool autoSized);

protected:
    void populateGeometryBuffer() override;
    //! Where the text goes, window-local; derived items make room for more.
    virtual Rectf textArea() const;
    virtual void drawBackdrop(GeometryBuffer&) {}
    virtual Colour currentTextColour() const { return d_textColour; }

    void onTextChanged(WindowEventArgs& e) override;
    void onFontChanged(WindowEventArgs& e) override;

private:
    void setFormattingName(const String& name) { setTextFormatting(horzTextFormatFromName(name)); }
    String getFormattingName() const { return nameOf(d_formatting); }

    Colour d_textColour{0xFF000000};
    HorzTextFormat d_formatting = HorzTextFormat::Left;
    bool d_autoSized = false;
};

} // namespace MoxieLook
} // namespace CEGUI
