#include "looks/MXTree.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "looks/AutoParts.h"
#include "looks/InnerBars.h"
#include "looks/MXListbox.h"

#include <CEGUI/Image.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/falagard/WidgetLookManager.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <CEGUI/widgets/TreeItem.h>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
// One image centred in the button's area, as CEGUI's tree asks for its branch buttons.
String buttonSection(const char* section, const char* image)
{
    return String("<ImagerySection name=\"") + section +
           "\"><ImageryComponent><Area>"
           "<Dim type=\"LeftEdge\"><AbsoluteDim value=\"0\" /></Dim>"
           "<Dim type=\"TopEdge\"><AbsoluteDim value=\"0\" /></Dim>"
           "<Dim type=\"Width\"><UnifiedDim scale=\"1\" type=\"Width\" /></Dim>"
           "<Dim type=\"Height\"><UnifiedDim scale=\"1\" type=\"Height\" /></Dim>"
           "</Area><Image name=\"MoxieLook/" +
           image +
           "\" /><VertFormat type=\"CentreAligned\" /><HorzFormat type=\"CentreAligned\" />"
           "</ImageryComponent></ImagerySection>";
}

const WidgetLookFeel& buttonLook()
{
    WidgetLookManager& looks = WidgetLookManager::getSingleton();
    if (!looks.isWidgetLookAvailable(MXTree::ButtonLookName))
        looks.parseLookNFeelSpecificationFromString(
            String("<?xml version=\"1.0\" ?><Falagard version=\"7\"><WidgetLook name=\"") +
            MXTree::ButtonLookName + "\">" +
            buttonSection("OpenTreeButton", MXTree::BranchClosedImageName) +
            buttonSection("CloseTreeButton", MXTree::BranchOpenImageName) +
            "</WidgetLook></Falagard>");
    return looks.getWidgetLook(MXTree::ButtonLookName);
}
} // namespace

const Colour MXTree::SelectionColour(0xFF3B78D8);

MXTree::MXTree(const String& type, const String& name)
    : RedrawnWhenUncovered<Tree>(type, name), d_fill(&lookImage(FillImageName)),
      d_brush(&lookImage(SelectionBrushImageName))
{
    setMouseCursor(&lookImage(MXListbox::MouseCursorImageName));
    d_frame.setImages({"StaticFrameListTopLeft", "StaticFrameListTopRight",
                       "StaticFrameListBottomLeft", "StaticFrameListBottomRight",
                       "StaticFrameListLeft", "StaticFrameListTop", "StaticFrameListRight",
                       "StaticFrameListBottom"});
    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXTree, ColourRect, "FrameColours",
                          "Property to get/set the frame's colours." MOXIE_COLOURS_VALUE_HELP,
                          &MXTree::setFrameColours, &MXTree::getFrameColours,
                          ColourRect(Colour(0xFFFFFFFF)));
}

void MXTree::setFrameColours(const ColourRect& colours)
{
    d_frameColours = colours;
    invalidate();
}

void MXTree::initialiseComponents()
{
    RedrawnWhenUncovered<Tree>::initialiseComponents();
    initialise();
}

void MXTree::initialise()
{
    const WidgetLookFeel& look = buttonLook();
    d_openButtonImagery = &look.getImagerySection("OpenTreeButton");
    d_closeButtonImagery = &look.getImagerySection("CloseTreeButton");
    if (d_vertScrollbar)
        return; // made already
    d_vertScrollbar = createVertScrollbar(VertScrollbarName);
    d_horzScrollbar = createHorzScrollbar(HorzScrollbarName);
    std::size_t watched = 0;
    for (Scrollbar* bar : {d_vertScrollbar, d_horzScrollbar})
    {
        bar->setNonClient(true);
        if (!isChild(bar))
            addChild(bar);
        bar->subscribeEvent(
            Scrollbar::EventScrollPositionChanged,
            Event::Subscriber(&MXTree::handle_scrollChange, static_cast<Tree*>(this)));
        for (const String* event : {&Window::EventShown, &Window::EventHidden})
            d_barWatches[watched++] = bar->subscribeEvent(*event, [this] { layOutBars(); });
    }
    configureScrollbars();
    performChildWindowLayout();
}

Scrollbar* MXTree::createVertScrollbar(const String& name) const
{
    // A tree from a layout file may bring its bars already.
    if (isChild(name))
        return static_cast<Scrollbar*>(getChild(name));
    return createAutoPart<Scrollbar>(VertScrollbarType, name, "a tree's scroll bar");
}

Scrollbar* MXTree::createHorzScrollbar(const String& name) const
{
    if (isChild(name))
        return static_cast<Scrollbar*>(getChild(name));
    return createAutoPart<Scrollbar>(HorzScrollbarType, name, "a tree's scroll bar");
}

void MXTree::performChildWindowLayout(bool nonclientSizedHint, bool clientSizedHint)
{
    RedrawnWhenUncovered<Tree>::performChildWindowLayout(nonclientSizedHint, clientSizedHint);
    layOutBars();
}

void MXTree::layOutBars()
{
    layOutInnerBars(d_vertScrollbar, d_horzScrollbar,
                    d_frame.innerRect(Rectf(Vector2f(0, 0), getPixelSize())), ScrollbarThickness);
}

Rectf MXTree::getTreeRenderArea() const
{
    return areaBesideInnerBars(d_frame.innerRect(Rectf(Vector2f(0, 0), getPixelSize())),
                               d_vertScrollbar, d_horzScrollbar, ScrollbarThickness);
}

void MXTree::cacheTreeBaseImagery()
{
    // CEGUI's tree lays its items out in the area it was last told, before drawing them.
    Rectf items = getTreeRenderArea();
    setItemRenderArea(items);
    GeometryBuffer& buffer = getGeometryBuffer();
    const Rectf area(Vector2f(0, 0), getPixelSize());
    const ColourRect white = withAlpha(ColourRect(Colour(0x00FFFFFF)), getEffectiveAlpha());
    drawImage(buffer, *d_fill, d_frame.innerRect(area), nullptr, white);
    d_frame.setSize(area.getSize());
    d_frame.setColours(faded(d_frameColours, getEffectiveAlpha()));
    d_frame.draw(buffer, Vector2f(0, 0), nullptr);
}

void MXTree::populateGeometryBuffer()
{
    // Nothing at all while clipped away, so that coming into view draws it whole.
    if (hasVisibleArea(*this))
        RedrawnWhenUncovered<Tree>::populateGeometryBuffer();
}

void MXTree::onListContentsChanged(WindowEventArgs& e)
{
    styleItems(d_listItems);
    RedrawnWhenUncovered<Tree>::onListContentsChanged(e);
}

void MXTree::styleItems(const std::vector<TreeItem*>& items)
{
    for (TreeItem* item : items)
    {
        if (!item->getSelectionBrushImage())
            item->setSelectionBrushImage(d_brush);
        // CEGUI's default indigo tint sinks into the dark field: the accent blue instead.
        const ColourRect& tint = item->getSelectionColours();
        if (tint.d_top_left == TreeItem::DefaultSelectionColour &&
            tint.d_bottom_right == TreeItem::DefaultSelectionColour)
            item->setSelectionColours(SelectionColour);
        styleItems(item->getItemList());
    }
}

} // namespace MoxieLook
} // namespace CEGUI
