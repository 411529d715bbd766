#include "GalleryPage.h"

#include "Label.h"
#include "Samples.h"
#include "module/FactoryTable.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/WindowManager.h>
#include <algorithm>

namespace gallery
{
using namespace CEGUI;

namespace
{
constexpr float Margin = 16;
constexpr float TitleHeight = 22;
constexpr float CardWidth = 620;
constexpr float DefaultContentHeight = 60;

const Sample* sampleFor(const String& type)
{
    for (const Sample& sample : samples())
        if (type == sample.type)
            return &sample;
    return nullptr;
}
} // namespace

GalleryPage::GalleryPage(const Sizef& display) : d_viewHeight(display.d_height)
{
    WindowManager& windows = WindowManager::getSingleton();
    Window* sheet = windows.createWindow("DefaultWindow", "gallery");
    sheet->setArea(URect(cegui_reldim(0), cegui_reldim(0), cegui_reldim(1), cegui_reldim(1)));
    System::getSingleton().getDefaultGUIContext().setRootWindow(sheet);

    d_pane = windows.createWindow("DefaultWindow", "pane");
    // CEGUI caps a window at its parent's size by default; the page is taller than the view.
    d_pane->setMaxSize(USize(cegui_absdim(1e6f), cegui_absdim(1e6f)));
    sheet->addChild(d_pane);

    // Cards fill two columns, each new card going to the shorter one.
    float columnBottom[2] = {Margin, Margin};
    for (const MoxieLook::FactoryEntry* entry = MoxieLook::factoryTableBegin();
         entry != MoxieLook::factoryTableEnd(); ++entry)
    {
        const Sample* sample = sampleFor(entry->typeName);
        const float contentHeight = sample ? sample->height : DefaultContentHeight;
        const int column = columnBottom[1] < columnBottom[0] ? 1 : 0;
        const float x = Margin + column * (CardWidth + Margin);
        const float y = columnBottom[column];

        Window* card = windows.createWindow("DefaultWindow");
        card->setArea(UVector2(cegui_absdim(x), cegui_absdim(y)),
                      USize(cegui_absdim(CardWidth), cegui_absdim(TitleHeight + contentHeight)));
        d_pane->addChild(card);

        Window* title = windows.createWindow(Label::WidgetTypeName);
        title->setArea(UVector2(cegui_absdim(4), cegui_absdim(0)),
                       USize(cegui_absdim(CardWidth - 8), cegui_absdim(TitleHeight)));
        title->setText(entry->typeName);
        card->addChild(title);

        Window* content = windows.createWindow("DefaultWindow");
        content->setArea(UVector2(cegui_absdim(0), cegui_absdim(TitleHeight)),
                         USize(cegui_absdim(CardWidth), cegui_absdim(contentHeight)));
        card->addChild(content);

        Card builder(*content);
        if (sample)
            sample->build(builder);
        else
            builder.add(entry->typeName, "", 10, 10, 200, 30);

        d_cards.push_back({entry->typeName, card, builder.hoverTarget(), builder.shownAction(),
                           builder.animationStart(), builder.animationFrames()});
        columnBottom[column] = y + TitleHeight + contentHeight + Margin;
    }
    d_contentHeight = std::max(columnBottom[0], columnBottom[1]);
    d_pane->setArea(UVector2(cegui_absdim(0), cegui_absdim(0)),
                    USize(cegui_absdim(2 * CardWidth + 3 * Margin), cegui_absdim(d_contentHeight)));
}

void GalleryPage::setScroll(float offset)
{
    d_scroll = std::clamp(offset, 0.0f, std::max(0.0f, d_contentHeight - d_viewHeight));
    d_pane->setPosition(UVector2(cegui_absdim(0), cegui_absdim(-d_scroll)));
}

void GalleryPage::scrollBy(float pixels)
{
    setScroll(d_scroll + pixels);
}

Rectf GalleryPage::bringIntoView(const CardInfo& card)
{
    setScroll(card.card->getPosition().d_y.d_offset - Margin);
    return card.card->getUnclippedOuterRect().get();
}

} // namespace gallery
