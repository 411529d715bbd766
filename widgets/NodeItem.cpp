#include "widgets/NodeItem.h"

#include <CEGUI/CoordConverter.h>
#include <CEGUI/Exceptions.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/WindowManager.h>
#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace CEGUI
{
namespace MoxieLook
{
const String NodeItem::EventTitleSelectedStateChanged("NodeItemTitleSelectedChanged");
const String NodeItem::EventLeafSelectedStateChanged("NodeItemLeafSelectedChanged");

namespace
{
NodeItemProperties::ChildAlignmentProperty d_childalignmentproperty;
NodeItemProperties::ChildIndentationProperty d_childindentationproperty;
NodeItemProperties::ChildMarginProperty d_childmarginproperty;
NodeItemProperties::MultiSelectionProperty d_multiselectionproperty;

const char* const ButtonExType = "MoxieLook/ButtonEx";
} // namespace

NodeItem::NodeItem(const String& type, const String& name)
    : RedrawnWhenUncovered<Window>(type, name)
{
    addNodeItemProperties();
    addNodeItemEvents();
}

void NodeItem::addNodeItemProperties()
{
    addProperty(&d_childalignmentproperty);
    addProperty(&d_childindentationproperty);
    addProperty(&d_childmarginproperty);
    addProperty(&d_multiselectionproperty);
}

void NodeItem::addNodeItemEvents()
{
    addEvent(EventTitleSelectedStateChanged);
    addEvent(EventLeafSelectedStateChanged);
}

bool NodeItem::IsRoot() const
{
    return !getParent() || getParent()->getType() != getType();
}

NodeItem* NodeItem::GetRoot()
{
    NodeItem* node = this;
    while (!node->IsRoot())
        node = static_cast<NodeItem*>(node->getParent());
    return node;
}

const NodeItem* NodeItem::GetRoot() const
{
    return const_cast<NodeItem*>(this)->GetRoot();
}

bool NodeItem::IsLeaf() const
{
    for (std::size_t i = 0; i < getChildCount(); ++i)
        if (isNode(getChildAtIdx(i)))
            return false;
    return true;
}

unsigned NodeItem::GetNbChildren() const
{
    unsigned count = 0;
    for (std::size_t i = 0; i < getChildCount(); ++i)
        if (getChildAtIdx(i)->getType() != ButtonExType)
            ++count;
    return count;
}

std::vector<NodeItem*> NodeItem::GetChildren() const
{
    std::vector<NodeItem*> children;
    for (std::size_t i = 0; i < getChildCount(); ++i)
        if (getChildAtIdx(i)->getType() != ButtonExType)
            if (auto* node = dynamic_cast<NodeItem*>(getChildAtIdx(i)))
                children.push_back(node);
    return children;
}

NodeItem* NodeItem::GetChildAtIdx(unsigned index) const
{
    unsigned nodeIndex = 0;
    for (std::size_t i = 0; i < getChildCount(); ++i)
        if (isNode(getChildAtIdx(i)) && nodeIndex++ == index)
            return static_cast<NodeItem*>(getChildAtIdx(i));
    return nullptr;
}

unsigned NodeItem::GetChildIndex(const NodeItem* child) const
{
    unsigned nodeIndex = 0;
    for (std::size_t i = 0; i < getChildCount(); ++i)
        if (isNode(getChildAtIdx(i)))
        {
            if (getChildAtIdx(i) == child)
                return nodeIndex;
            ++nodeIndex;
        }
    return nodeIndex;
}

void NodeItem::AddNode(NodeItem* node)
{
    addChild(node);
    DoLayout();
}

void NodeItem::AddNodeAtIndex(NodeItem* node, unsigned index)
{
    std::vector<Window*> taken;
    const std::size_t count = getChildCount();
    // A child at `index` that is not a node is looked at again each time: it ends the
    // gathering there.
    for (std::size_t n = index; n < count; ++n)
    {
        if (index >= getChildCount())
            break;
        Window* child = getChildAtIdx(index);
        if (!isNode(child))
            continue;
        removeChild(child);
        taken.push_back(child);
    }
    addChild(node);
    for (Window* child : taken)
        addChild(child);
    DoLayout();
}

void NodeItem::RemoveChild(Window* window)
{
    removeChild(window);
    DoLayout();
}

void NodeItem::RemoveChildAtIdx(unsigned index)
{
    if (NodeItem* child = GetChildAtIdx(index))
        removeChild(child);
    DoLayout();
}

void NodeItem::DestroyChildAtIdx(unsigned index)
{
    if (NodeItem* child = GetChildAtIdx(index))
        child->destroy();
    DoLayout();
}

void NodeItem::RemoveAllNodeItems()
{
    for (std::size_t i = getChildCount(); i-- > 0;)
        if (isNode(getChildAtIdx(i)))
            removeChild(getChildAtIdx(i));
    DoLayout();
}

void NodeItem::DestroyChildrenNodes()
{
    std::vector<Window*> nodes;
    for (std::size_t i = 0; i < getChildCount(); ++i)
        if (isNode(getChildAtIdx(i)))
            nodes.push_back(getChildAtIdx(i));
    for (Window* node : nodes)
        WindowManager::getSingleton().destroyWindow(node);
    DoLayout();
}

NodeItem::ChildAlignment NodeItem::GetChildAlignment() const
{
    if (d_childAlignment != Inherit)
        return d_childAlignment;
    const ChildAlignment root = GetRoot()->d_childAlignment;
    return root != Inherit ? root : DefaultChildAlignment;
}

void NodeItem::DoLayout()
{
    const std::vector<NodeItem*> children = GetChildren();
    float total = 0;
    for (NodeItem* child : children)
    {
        if (!isNode(child))
            continue;
        child->DoLayout();
        total += child->getPixelSize().d_height + d_childMargin;
    }

    const float height = getPixelSize().d_height;
    float y = 0;
    switch (GetChildAlignment())
    {
    case Top:
        y = -total;
        break;
    case Centre:
    {
        const Rectf own = getUnclippedOuterRect().get();
        y = (height - total) * 0.5f;
        y = std::min(y, CoordConverter::screenToWindowY(*this, own.bottom()) - total);
        y = std::max(y, CoordConverter::screenToWindowY(*this, own.top()));
        break;
    }
    default:
        y = height + d_childMargin;
        break;
    }
    for (NodeItem* child : children)
    {
        if (!isNode(child))
            continue;
        child->setPosition(UVector2(cegui_absdim(d_childIndentation), cegui_absdim(y)));
        y += child->getPixelSize().d_height + d_childMargin;
    }
}

void NodeItem::UnselectBrothers()
{
    auto* parent = dynamic_cast<NodeItem*>(getParent());
    if (!parent)
        return;
    for (NodeItem* brother : parent->GetChildren())
        if (brother != this && isNode(brother))
            brother->SetSelected(false);
}

void NodeItem::SetSelected(bool selected)
{
    if (IsSelected() == selected)
        return;
    d_selected = selected;
    if (selected && !d_multiSelection && !IsRoot())
        UnselectBrothers();
    for (NodeItem* child : GetChildren())
    {
        if (!isNode(child))
            continue;
        child->setVisible(IsSelected());
        if (!d_selected)
            child->SetSelected(false); // deselection closes the whole subtree
    }
    if (d_selected && !IsRoot())
        static_cast<NodeItem*>(getParent())->SetSelected(true);
    WindowEventArgs args(this);
    fireEvent(IsLeaf() ? EventLeafSelectedStateChanged : EventTitleSelectedStateChanged, args, "");
}

void NodeItem::onSized(ElementEventArgs& e)
{
    RedrawnWhenUncovered<Window>::onSized(e);
    GetRoot()->DoLayout();
}

void NodeItem::onMouseClicked(MouseEventArgs& e)
{
    RedrawnWhenUncovered<Window>::onMouseClicked(e);
    if (e.button == LeftButton)
    {
        SetSelected(true);
        ++e.handled;
    }
}

void NodeItem::addChild_impl(Element* element)
{
    RedrawnWhenUncovered<Window>::addChild_impl(element);
    auto* window = static_cast<Window*>(element);
    if (isNode(window))
    {
        NbChildrenChanged(GetNbChildren());
        window->setVisible(IsSelected());
        DoLayout();
    }
}

void NodeItem::removeChild_impl(Element* element)
{
    RedrawnWhenUncovered<Window>::removeChild_impl(element);
    NbChildrenChanged(GetNbChildren());
    if (isNode(static_cast<Window*>(element)))
        DoLayout();
}

namespace NodeItemProperties
{
const char* const ChildAlignmentProperty::AlignmentValues[5] = {"Top", "Bottom", "Centre",
                                                                "Inherit", "end"};

float leadingNumber(const String& property, const String& text)
{
    const double value = std::strtod(text.c_str(), nullptr);
    if (!std::isfinite(value) || std::fabs(value) > 3.0e38)
        throw InvalidRequestException("\"" + property + "\": '" + text +
                                      "' is not a number of pixels.");
    return static_cast<float>(value);
}

ChildAlignmentProperty::ChildAlignmentProperty()
    : Property("ChildAlignment", "Switch between Top, Bottom or Center alignment for children",
               "Bottom", true, "MoxieLook/NodeItem")
{
}

String ChildAlignmentProperty::get(const PropertyReceiver* receiver) const
{
    return AlignmentValues[static_cast<const NodeItem*>(receiver)->GetChildAlignment()];
}

void ChildAlignmentProperty::set(PropertyReceiver* receiver, const String& value)
{
    for (int i = 0; i < 4; ++i)
        if (value == AlignmentValues[i])
            static_cast<NodeItem*>(receiver)->SetChildAlignment(
                static_cast<NodeItem::ChildAlignment>(i));
}

ChildIndentationProperty::ChildIndentationProperty()
    : Property("ChildIndentation", "Ajust, in absolute pixel value, the child indentation", "0",
               true, "MoxieLook/NodeItem")
{
}

void ChildIndentationProperty::set(PropertyReceiver* receiver, const String& value)
{
    static_cast<NodeItem*>(receiver)->SetChildIndentation(leadingNumber(getName(), value));
}

ChildMarginProperty::ChildMarginProperty()
    : Property("ChildMargin", "Ajust, in absolute pixel value, the inter-child margin", "0", true,
               "MoxieLook/NodeItem")
{
}

void ChildMarginProperty::set(PropertyReceiver* receiver, const String& value)
{
    static_cast<NodeItem*>(receiver)->SetChildMargin(leadingNumber(getName(), value));
}

MultiSelectionProperty::MultiSelectionProperty()
    : Property("MultiSelectionEnabled", "Enable/disable the multi selection option.", "False", true,
               "MoxieLook/NodeItem")
{
}

void MultiSelectionProperty::set(PropertyReceiver* receiver, const String& value)
{
    static_cast<NodeItem*>(receiver)->SetMultiSelectionEnabled(
        PropertyHelper<bool>::fromString(value));
}
} // namespace NodeItemProperties

} // namespace MoxieLook
} // namespace CEGUI
