#include "widgets/TreeView.h"

#include "draw/Imagery.h"
#include "widgets/TreeViewHits.h"
#include "widgets/TreeViewLineIndex.h"
#include "widgets/WheelForwarding.h"

#include <CEGUI/CoordConverter.h>
#include <CEGUI/Exceptions.h>
#include <CEGUI/Font.h>
#include <CEGUI/FontManager.h>
#include <CEGUI/Image.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/System.h>
#include <CEGUI/widgets/ScrollablePane.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <CEGUI/widgets/ScrolledContainer.h>
#include <algorithm>
#include <cmath>
#include <deque>
#include <limits>

namespace CEGUI
{
namespace MoxieLook
{
using namespace treeview;

const String TreeView::EventNamespace("TreeView");
const String TreeView::EventLeafItemClicked("TreeViewLeafItemClicked");
const String TreeView::EventLeafItemDoubleClicked("TreeViewLeafItemDoubleClicked");
const String TreeView::EventTitleItemClicked("TreeViewTitleItemClicked");
const String TreeView::EventTitleItemDoubleClicked("TreeViewTitleItemDoubleClicked");
const String TreeView::EventTitleOpenStateChanged("TreeViewTitleStateChanged");
const String TreeView::EventTitleFocusedItemChanged("TreeViewFocusedItemChanged");

namespace
{
TreeViewProperties::PixelIndentProperty s_pixelIndentProperty;
TreeViewProperties::NormalTitleTextColourProperty s_normalTitleColourProperty;
TreeViewProperties::HoverTitleTextColourProperty s_hoverTitleColourProperty;
TreeViewProperties::SelectedTitleTextColourProperty s_selectedTitleColourProperty;
TreeViewProperties::NormalLeafTextColourProperty s_normalLeafColourProperty;
TreeViewProperties::HoverLeafTextColourProperty s_hoverLeafColourProperty;
TreeViewProperties::SelectedLeafTextColourProperty s_selectedLeafColourProperty;
TreeViewProperties::PixelNodeHeightProperty s_pixelNodeHeightProperty;
TreeViewProperties::TitleFontProperty s_titleFontProperty;

} // namespace

// --- TreeView -----------------------------------------------------------------------------

TreeView::TreeView(const String& type, const String& name)
    : RedrawnWhenUncovered<Window>(type, name)
{
}

TreeView::~TreeView() = default;

void TreeView::initialiseComponents()
{
    RedrawnWhenUncovered<Window>::initialiseComponents();
    d_root.reset(CreateRootNode());
    d_root->d_owner = this;
    d_hoveredNode = nullptr;
    if (d_pixelNodeHeight != 0)
        d_root->SetPixelHeight(d_pixelNodeHeight, false);

    d_pane = CreateScrollablePane();
    d_pane->setInheritsTooltipText(true);
    // The pane lies over the whole tree, outside its inner area: the tree itself takes
    // the mouse, the pane's scroll bars stay clickable.
    d_pane->setNonClient(true);
    d_pane->setMousePassThroughEnabled(true);
    addChild(d_pane);
    d_pane->setSize(USize(cegui_reldim(1.0f), cegui_reldim(1.0f)));
    d_pane->setContentPaneAutoSized(false);
    if (Window* content = const_cast<ScrolledContainer*>(d_pane->getContentPane()))
        content->setMousePassThroughEnabled(true);
    d_pane->subscribeEvent(ScrollablePane::EventContentPaneScrolled,
                           Event::Subscriber(&TreeView::Update, this));
    for (Scrollbar* bar : {d_pane->getVertScrollbar(), d_pane->getHorzScrollbar()})
        giveWheelTo(*bar, *this, [this](MouseEventArgs& e) { onMouseWheel(e); });

    for (const String* event :
         {&EventLeafItemClicked, &EventLeafItemDoubleClicked, &EventTitleItemClicked,
          &EventTitleItemDoubleClicked, &EventTitleOpenStateChanged, &EventTitleFocusedItemChanged})
        if (!isEventPresent(*event))
            addEvent(*event);
    addTreeViewProperties();
    d_titleFont = nullptr;
    nodesChanged(true);
}

void TreeView::addTreeViewProperties()
{
    if (isPropertyPresent(s_pixelIndentProperty.getName()))
        return;
    for (Property* property : std::initializer_list<Property*>{
             &s_pixelIndentProperty, &s_normalTitleColourProperty, &s_hoverTitleColourProperty,
             &s_selectedTitleColourProperty, &s_normalLeafColourProperty,
             &s_hoverLeafColourProperty, &s_selectedLeafColourProperty, &s_pixelNodeHeightProperty,
             &s_titleFontProperty})
        addProperty(property);
}

void TreeView::nodesChanged(bool relayout)
{
    if (relayout)
    {
        d_layOutAll = true;
        d_layoutValid = false;
        d_indexValid = false;
    }
    invalidate();
}

void TreeView::subtreeChanged(Node& node)
{
    // Beyond a few subtrees, laying out everything once is cheaper than finding them all.
    constexpr std::size_t MostSubtrees = 64;
    if (!d_layOutAll)
    {
        const bool inChanged = std::any_of(d_changed.begin(), d_changed.end(),
                                           [&node](Node* n) { return isWithin(&node, *n); });
        if (!inChanged && d_changed.size() < MostSubtrees)
            d_changed.push_back(&node);
        else if (!inChanged)
            d_layOutAll = true;
    }
    d_layoutValid = false;
    d_indexValid = false;
    invalidate();
}

void TreeView::clearSelection()
{
    // As the root's Select(false, true), for the nodes that can be selected.
    for (Node* node : d_selectedNodes)
        node->d_selected = false;
    d_selectedNodes.clear();
    d_selectedKept = 0;
}

void TreeView::rememberSelected(Node& node)
{
    // Unselected and selected again, a node comes back: keep the list to what is selected.
    if (d_selectedNodes.size() >= 2 * d_selectedKept + 64)
    {
        d_selectedNodes.erase(std::remove_if(d_selectedNodes.begin(), d_selectedNodes.end(),
                                             [](Node* n) { return !n->d_selected; }),
                              d_selectedNodes.end());
        d_selectedKept = d_selectedNodes.size();
    }
    d_selectedNodes.push_back(&node);
}

void TreeView::nodeLeaving(const Node& node)
{
    // Only the flagged node carries a hover flag: if it goes, none is left.
    if (isWithin(d_flaggedNode, node))
        d_flaggedNode = nullptr;
    d_selectedNodes.erase(std::remove_if(d_selectedNodes.begin(), d_selectedNodes.end(),
                                         [&node](Node* n) { return isWithin(n, node); }),
                          d_selectedNodes.end());
    d_changed.erase(std::remove_if(d_changed.begin(), d_changed.end(),
                                   [&node](Node* n) { return isWithin(n, node); }),
                    d_changed.end());
    d_strays.erase(std::remove_if(d_strays.begin(), d_strays.end(),
                                  [&node](Node* n) { return isWithin(n, node); }),
                   d_strays.end());
    // Its lines stay, nameless, until the next layout replaces them: every node of it that
    // has one (an empty text's children have lines where it has none).
    if (!d_lines)
        return;
    std::vector<const Node*> pending{&node};
    while (!pending.empty())
    {
        const Node* n = pending.back();
        pending.pop_back();
        if (n->d_hitRelative && n->d_chunk)
        {
            const auto at = d_lines->find(*n->d_chunk, n->d_hitRect.top() - 3.0f);
            if (!d_lines->isEnd(at) && d_lines->at(at).node == n)
                d_lines->orphan(at);
        }
        for (const auto& child : n->d_children)
            pending.push_back(child.get());
    }
}

bool TreeView::RemoveNode(Node* node)
{
    return d_root->Remove(node); // which tells the tree
}

TreeView::Node* TreeView::GetNodeForName(const String& name, Node* start)
{
    return (start ? start : d_root.get())->GetNode(name);
}

TreeView::Node* TreeView::GetSelectedNode()
{
    return d_root->GetSelectedNode();
}

void TreeView::SetSelectionByName(const String& name)
{
    if (Node* node = d_root->GetNode(name))
        SetSelectionByNode(node);
}

void TreeView::SetSelectionByNode(Node* node)
{
    if (!node)
        return;
    clearSelection();
    node->Select(true, false);
    invalidate();
    fireItemEvent(node->IsLeaf() ? EventLeafItemClicked : EventTitleItemClicked, node);
}

void TreeView::SetPixelIndent(unsigned indent)
{
    d_pixelIndent = indent;
    nodesChanged(true);
}

void TreeView::SetPixelNodeHeight(unsigned height)
{
    d_pixelNodeHeight = height;
    d_root->SetPixelHeight(height, true);
}

void TreeView::SetTitleFont(const String& name)
{
    d_titleFont = &FontManager::getSingleton().get(name);
    nodesChanged(true);
}

const Font* TreeView::GetTitleFont() const
{
    return d_titleFont ? d_titleFont : getFont(true);
}

void TreeView::SetNormalTitleTextColour(const Colour& colour)
{
    d_normalTitleColour = colour;
    invalidate();
}

void TreeView::SetHoverTitleTextColour(const Colour& colour)
{
    d_hoverTitleColour = colour;
    invalidate();
}

void TreeView::SetSelectedTitleTextColour(const Colour& colour)
{
    d_selectedTitleColour = colour;
    invalidate();
}

void TreeView::SetNormalLeafTextColour(const Colour& colour)
{
    d_normalLeafColour = colour;
    invalidate();
}

void TreeView::SetHoverLeafTextColour(const Colour& colour)
{
    d_hoverLeafColour = colour;
    invalidate();
}

void TreeView::SetSelectedLeafTextColour(const Colour& colour)
{
    d_selectedLeafColour = colour;
    invalidate();
}

const Colour& TreeView::GetColour(bool leaf, bool selected, bool hovered) const
{
    if (leaf)
        return selected ? d_selectedLeafColour : hovered ? d_hoverLeafColour : d_normalLeafColour;
    return selected ? d_selectedTitleColour : hovered ? d_hoverTitleColour : d_normalTitleColour;
}

bool TreeView::Update(const EventArgs&)
{
    invalidate();
    return true;
}

Rectf TreeView::getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const
{
    const Rectf outer = skipAllPixelAlignment ? getUnclippedOuterRect().getFresh(true)
                                              : getUnclippedOuterRect().get();
    if (!d_pane)
        return outer;
    // The pane's viewable area: inside its frame, clear of its scroll bars.
    const Rectf pane = skipAllPixelAlignment ? d_pane->getUnclippedOuterRect().getFresh(true)
                                             : d_pane->getUnclippedOuterRect().get();
    return moved(d_pane->getViewableArea(), pane.d_min);
}

void TreeView::notifyScreenAreaChanged(bool recursive)
{
    RedrawnWhenUncovered<Window>::notifyScreenAreaChanged(recursive);
    if (d_clipWatch.uncovers(*this, getInnerRectClipper()))
        invalidate(false);
}

Rectf TreeView::linesArea() const
{
    return getUnclippedInnerRect().get();
}

Sizef TreeView::contentSize() const
{
    const Font* font = getFont(true);
    return Sizef(d_laidOutSize.d_width,
                 d_laidOutSize.d_height + (font ? font->getLineSpacing() : 0.0f));
}

std::size_t TreeView::GetLaidOutLineCount() const
{
    return d_lines ? d_lines->size() : 0;
}

void TreeView::layOut()
{
    if (!d_lines)
        d_lines = std::make_unique<LineIndex>();
    bool all = d_layOutAll;
    if (!all)
    {
        // A subtree inside another that changed is laid out with it.
        std::vector<Node*> changed;
        for (Node* node : d_changed)
        {
            bool inner = false;
            for (Node* other : d_changed)
                inner = inner || (other != node && isWithin(node->d_parent, *other));
            if (!inner && std::find(changed.begin(), changed.end(), node) == changed.end())
                changed.push_back(node);
        }
        // Last in the walk first: laying one out moves only the lines after it, so the
        // others still hold their last-drawn places when their nodes are frozen.
        std::sort(changed.begin(), changed.end(),
                  [](const Node* a, const Node* b) { return precedes(b, a); });
        all = !std::all_of(changed.begin(), changed.end(),
                           [this](const Node* n) { return canLayOutAgain(*n); });
        if (!all)
            for (Node* node : changed)
                layOutAgain(*node);
    }
    if (all)
    {
        std::vector<Line> lines;
        d_strays.clear();
        walk(*d_root, 0.0f, true, lines);
        d_lines->replace(d_lines->begin(), d_lines->end(), std::move(lines),
                         [this](const Line& line, const LineChunk& chunk) { place(line, chunk); });
    }
    d_changed.clear();
    d_layOutAll = false;
    d_laidOutSize = d_lines->extent();
    d_layoutValid = true;
    d_indexValid = true;
}

bool TreeView::canLayOutAgain(const Node& node) const
{
    if (node.d_hitRelative && node.d_chunk)
    {
        const LineIndex::Position at = d_lines->find(*node.d_chunk, node.d_hitRect.top() - 3.0f);
        return !d_lines->isEnd(at) && d_lines->at(at).node == &node;
    }
    // No line to find its place by: fine while no line of its subtree can be shown.
    for (const Node* n = node.d_parent; n; n = n->d_parent)
        if (!n->IsOpened())
            return true;
    return false;
}

void TreeView::layOutAgain(Node& node)
{
    if (!node.d_hitRelative || !node.d_chunk)
    {
        std::vector<Line> none;
        d_strays.erase(std::remove_if(d_strays.begin(), d_strays.end(),
                                      [&node](Node* s) { return isWithin(s, node); }),
                       d_strays.end());
        walk(node, 0.0f, false, none);
        return;
    }
    const LineIndex::Position first = d_lines->find(*node.d_chunk, node.d_hitRect.top() - 3.0f);
    LineIndex::Position last = d_lines->next(first);
    while (!d_lines->isEnd(last) &&
           (!d_lines->at(last).node || isWithin(d_lines->at(last).node, node)))
        last = d_lines->next(last);

    d_strays.erase(std::remove_if(d_strays.begin(), d_strays.end(),
                                  [&node](Node* s) { return isWithin(s, node); }),
                   d_strays.end());
    std::vector<Line> lines;
    walk(node, d_lines->at(first).x, true, lines);
    d_lines->replace(first, last, std::move(lines),
                     [this](const Line& line, const LineChunk& chunk) { place(line, chunk); });
}

void TreeView::walk(Node& from, float fromX, bool fromShown, std::vector<Line>& lines)
{
    const Font* leafFont = getFont(true);
    const Font* titleFont = GetTitleFont();
    // Pre-order; `x` is the indentation, `shown` whether the node's line is drawn (all
    // its ancestors open).
    struct Frame
    {
        Node* node;
        float x;
        bool shown;
    };
    std::vector<Frame> stack{{&from, fromX, fromShown}};
    while (!stack.empty())
    {
        const Frame frame = stack.back();
        stack.pop_back();
        Node& node = *frame.node;
        float x = frame.x;
        bool drawn = false;
        if (frame.shown)
        {
            node.d_owner = this;
            const Font* font = node.IsLeaf() ? leafFont : titleFont;
            if (!node.d_text.empty() && font)
            {
                const float h = node.d_pixelHeight != 0 ? static_cast<float>(node.d_pixelHeight)
                                                        : std::trunc(font->getBaseline());
                const Image* nav = node.GetNavigationImage();
                const float navWidth = nav ? nav->getRenderedSize().d_width : 0.0f;
                const float iconWidth = node.d_icon ? node.d_icon->getRenderedSize().d_width : 0.0f;
                const float textRight =
                    x + navWidth + iconWidth + node.textWidth(*font, d_metricsEpoch);
                node.d_iconWidth = static_cast<unsigned>(navWidth);
                lines.push_back({&node, x, 0.0f, h, navWidth, iconWidth, textRight});
                drawn = true;
            }
            else
                x -= static_cast<float>(d_pixelIndent); // children at this node's indentation
        }
        if (!drawn)
        {
            if (node.d_hitRelative)
            {
                // Frozen where the last draw put it.
                node.d_clipped = node.IsClipped();
                node.d_hitRect = node.GetHitRect();
                node.d_hitRelative = false;
                node.d_chunk = nullptr;
            }
            if (node.d_visible)
                d_strays.push_back(&node);
        }
        const bool childrenShown = frame.shown && !node.IsLeaf() && node.d_opened;
        const float childX = x + static_cast<float>(d_pixelIndent);
        for (auto it = node.d_children.rbegin(); it != node.d_children.rend(); ++it)
            stack.push_back({it->get(), childX, childrenShown});
    }
}

void TreeView::place(const Line& line, const LineChunk& chunk)
{
    Node& node = *line.node;
    node.d_hitRect = Rectf(line.x, line.y + 3.0f, line.textRight, line.y + line.height);
    node.d_textRight = line.textRight;
    node.d_hitRelative = true;
    node.d_chunk = &chunk;
}

void TreeView::RenderNodes(GeometryBuffer& buffer)
{
    if (!d_layoutValid)
        layOut();
    const Rectf inner = linesArea();
    const Sizef content = contentSize();
    const Rectf contentArea(0, 0, content.d_width, content.d_height);
    if (contentArea != d_contentArea)
    {
        d_contentArea = contentArea;
        d_pane->setContentPaneArea(contentArea);
    }
    // The pane's scroll positions are fractions of its content area.
    d_origin =
        Vector2f(inner.left() - d_pane->getHorizontalScrollPosition() * contentArea.getWidth(),
                 inner.top() - d_pane->getVerticalScrollPosition() * contentArea.getHeight());
    const Rectf clip = getInnerRectClipper();
    d_clipRight = clip.right();
    d_clipWatch.drawnWith(*this, clip);
    if (clip.getWidth() <= 0 || clip.getHeight() <= 0)
        return;

    // Only the lines that meet the clip area: they are in order of their tops.
    const Vector2f window = getUnclippedOuterRect().get().d_min;
    const double top = clip.top() - d_origin.d_y;
    const double bottom = clip.bottom() - d_origin.d_y;
    const Rectf localClip = moved(clip, Vector2f(-window.d_x, -window.d_y));
    const Vector2f toLocal(d_origin.d_x - window.d_x, d_origin.d_y - window.d_y);
    for (auto at = d_lines->firstEndingAfter(top, false);
         !d_lines->isEnd(at) && d_lines->topOf(at) < bottom; at = d_lines->next(at))
    {
        Line line = d_lines->at(at);
        line.x += toLocal.d_x;
        line.y = static_cast<float>(d_lines->topOf(at) + toLocal.d_y);
        line.textRight += toLocal.d_x;
        line.node->Render(buffer, line, localClip, *this);
    }
}

// --- properties ---------------------------------------------------------------------------

namespace TreeViewProperties
{
namespace
{
TreeView& treeOf(PropertyReceiver* receiver)
{
    return *static_cast<TreeView*>(receiver);
}
const TreeView& treeOf(const PropertyReceiver* receiver)
{
    return *static_cast<const TreeView*>(receiver);
}
} // namespace

PixelIndentProperty::PixelIndentProperty()
    : Property("PixelIndent", "Property to change the indentation in pixels.", "15", true,
               "MoxieLook/TreeView")
{
}
String PixelIndentProperty::get(const PropertyReceiver* receiver) const
{
    return PropertyHelper<uint>::toString(treeOf(receiver).GetPixelIndent());
}
void PixelIndentProperty::set(PropertyReceiver* receiver, const String& value)
{
    treeOf(receiver).SetPixelIndent(PropertyHelper<uint>::fromString(value));
}

PixelNodeHeightProperty::PixelNodeHeightProperty()
    : Property("PixelNodeHeight", "Specify a height for the nodes.", "0", true,
               "MoxieLook/TreeView")
{
}
String PixelNodeHeightProperty::get(const PropertyReceiver* receiver) const
{
    return PropertyHelper<uint>::toString(treeOf(receiver).GetPixelNodeHeight());
}
void PixelNodeHeightProperty::set(PropertyReceiver* receiver, const String& value)
{
    treeOf(receiver).SetPixelNodeHeight(PropertyHelper<uint>::fromString(value));
}

TitleFontProperty::TitleFontProperty()
    : Property("TitleFont", "Property to change the font used for titles.", "", true,
               "MoxieLook/TreeView")
{
}
// Reports the window's font, not the title font: kept so.
String TitleFontProperty::get(const PropertyReceiver* receiver) const
{
    const Font* font = treeOf(receiver).getFont(true);
    if (!font || font == System::getSingleton().getDefaultGUIContext().getDefaultFont())
        return "";
    return font->getName();
}
void TitleFontProperty::set(PropertyReceiver* receiver, const String& value)
{
    try
    {
        treeOf(receiver).SetTitleFont(value);
    }
    catch (const UnknownObjectException&)
    {
        throw UnknownObjectException("\"TitleFont\": no font named '" + value + "' is loaded.");
    }
}

TextColourProperty::TextColourProperty(const String& name, const String& help,
                                       const String& defaultValue, Getter getter, Setter setter)
    : Property(name, help, defaultValue, true, "MoxieLook/TreeView"), d_getter(getter),
      d_setter(setter)
{
}
String TextColourProperty::get(const PropertyReceiver* receiver) const
{
    return PropertyHelper<Colour>::toString((treeOf(receiver).*d_getter)());
}
void TextColourProperty::set(PropertyReceiver* receiver, const String& value)
{
    (treeOf(receiver).*d_setter)(PropertyHelper<Colour>::fromString(value));
}

#define MOXIE_TREE_COLOUR_PROPERTY(Class, Name, Help, Default, Getter, Setter)                     \
    const String Class::DefaultTextColour(Default);                                                \
    Class::Class() : TextColourProperty(Name, Help, Default, &TreeView::Getter, &TreeView::Setter) \
    {                                                                                              \
    }
MOXIE_TREE_COLOUR_PROPERTY(NormalTitleTextColourProperty, "NormalTitleTextColour",
                           "Property to change the normal text colour of titles.", "FFFFFFFF",
                           GetNormalTitleTextColour, SetNormalTitleTextColour)
MOXIE_TREE_COLOUR_PROPERTY(HoverTitleTextColourProperty, "HoverTitleTextColour",
                           "Property to change the hover text colour of titles.", "FFFF00FF",
                           GetHoverTitleTextColour, SetHoverTitleTextColour)
MOXIE_TREE_COLOUR_PROPERTY(SelectedTitleTextColourProperty, "SelectedTitleTextColour",
                           "Property to change the selected text colour of titles.", "FFFFFF00",
                           GetSelectedTitleTextColour, SetSelectedTitleTextColour)
MOXIE_TREE_COLOUR_PROPERTY(NormalLeafTextColourProperty, "NormalLeafTextColour",
                           "Property to change the normal text colour of leaves.", "FFFFFFFF",
                           GetNormalLeafTextColour, SetNormalLeafTextColour)
MOXIE_TREE_COLOUR_PROPERTY(HoverLeafTextColourProperty, "HoverLeafTextColour",
                           "Property to change the hover text colour of leaves.", "FFFF00FF",
                           GetHoverLeafTextColour, SetHoverLeafTextColour)
MOXIE_TREE_COLOUR_PROPERTY(SelectedLeafTextColourProperty, "SelectedLeafTextColour",
                           "Property to change the selected text colour of leaves.", "FFFFFF00",
                           GetSelectedLeafTextColour, SetSelectedLeafTextColour)
#undef MOXIE_TREE_COLOUR_PROPERTY
} // namespace TreeViewProperties

} // namespace MoxieLook
} // namespace CEGUI
