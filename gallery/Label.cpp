#include "Label.h"

#include "draw/TextDrawing.h"

namespace gallery
{
const CEGUI::String Label::WidgetTypeName("Gallery/Label");

Label::Label(const CEGUI::String& type, const CEGUI::String& name) : Window(type, name)
{
    setMousePassThroughEnabled(true);
}

void Label::populateGeometryBuffer()
{
    using namespace CEGUI;
    MoxieLook::drawText(*this, getGeometryBuffer(), getRenderedString(),
                        Rectf(Vector2f(0, 0), getPixelSize()), MoxieLook::HorzTextFormat::Left,
                        MoxieLook::VertTextFormat::Centred, ColourRect(Colour(0xFF1E2630)),
                        nullptr);
}

} // namespace gallery
