// A tree made of real child windows: every child window of the node's own type is a child
// node, any other child is decoration. Selected doubles as expanded: a node's child nodes
// are visible while it is selected. Child nodes stand in a column above, below or centred
// beside their parent, at an indentation, with a margin after each.
#pragma once

#include "draw/RedrawnWhenUncovered.h"

#include <CEGUI/Window.h>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
class NodeItem : public RedrawnWhenUncovered<Window>
{
public:
    enum ChildAlignment
    {
        Top = 0,
        Bottom = 1,
        Centre = 2,
        Inherit = 3
    };
    static const ChildAlignment DefaultChildAlignment = Bottom;

    static const String EventTitleSelectedStateChanged; //!< "NodeItemTitleSelectedChanged"
    static const String EventLeafSelectedStateChanged;  //!< "NodeItemLeafSelectedChanged"

    NodeItem(const String& type, const String& name);

    //! No parent, or a parent of another window type.
    bool IsRoot() const;
    NodeItem* GetRoot();
    const NodeItem* GetRoot() const;
    //! Always true for a root.
    bool IsSelected() const { return d_selected || IsRoot(); }
    bool IsLeaf() const;

    //! Child windows that are not "MoxieLook/ButtonEx" (decoration counts too).
    unsigned GetNbChildren() const;
    //! The child nodes among those windows, in window order.
    std::vector<NodeItem*> GetChildren() const;
    //! The child node at node index `index`, or null.
    NodeItem* GetChildAtIdx(unsigned index) const;
    //! The node index of `child`; the number of child nodes when it is not one of them.
    unsigned GetChildIndex(const NodeItem* child) const;

    void AddNode(NodeItem* node);
    //! Child nodes from window position `index` on, up to the first other child, go after
    //! `node`.
    void AddNodeAtIndex(NodeItem* node, unsigned index);
    virtual void RemoveChild(Window* window);
    virtual void RemoveChildAtIdx(unsigned index);
    virtual void DestroyChildAtIdx(unsigned index);
    virtual void RemoveAllNodeItems();
    void DestroyChildrenNodes();

    void SetChildAlignment(ChildAlignment alignment) { d_childAlignment = alignment; }
    //! Inherit resolves to the root's alignment, and to Bottom under an inheriting root.
    ChildAlignment GetChildAlignment() const;
    void SetChildIndentation(float indentation) { d_childIndentation = indentation; }
    float GetChildIndentation() const { return d_childIndentation; }
    void SetChildMargin(float margin) { d_childMargin = margin; }
    float GetChildMargin() const { return d_childMargin; }
    void SetMultiSelectionEnabled(bool enabled) { d_multiSelection = enabled; }
    bool IsMultiSelectionEnabled() const { return d_multiSelection; }

    virtual void SetSelected(bool selected);
    //! The concrete node reacts to a changed number of children.
    virtual void NbChildrenChanged(unsigned count) = 0;

    virtual void DoLayout();

protected:
    void onSized(ElementEventArgs& e) override;
    void onMouseClicked(MouseEventArgs& e) override;
    void addChild_impl(Element* element) override;
    void removeChild_impl(Element* element) override;

    bool isNode(const Window* window) const { return window && window->getType() == getType(); }

private:
    void UnselectBrothers();
    void addNodeItemProperties();
    void addNodeItemEvents();

    bool d_selected = false;
    bool d_multiSelection = false;
    ChildAlignment d_childAlignment = Inherit;
    float d_childIndentation = 10.0f;
    float d_childMargin = 0.0f;
};

namespace NodeItemProperties
{
class ChildAlignmentProperty : public Property
{
public:
    //! "Top", "Bottom", "Centre", "Inherit", then the end marker "end".
    static const char* const AlignmentValues[5];
    ChildAlignmentProperty();
    String get(const PropertyReceiver* receiver) const override;
    void set(PropertyReceiver* receiver, const String& value) override;
    Property* clone() const override { return new ChildAlignmentProperty(*this); }
};

//! Write-only: reads back as the empty string.
class ChildIndentationProperty : public Property
{
public:
    ChildIndentationProperty();
    String get(const PropertyReceiver*) const override { return ""; }
    void set(PropertyReceiver* receiver, const String& value) override;
    Property* clone() const override { return new ChildIndentationProperty(*this); }
};

class ChildMarginProperty : public Property
{
public:
    ChildMarginProperty();
    String get(const PropertyReceiver*) const override { return ""; }
    void set(PropertyReceiver* receiver, const String& value) override;
    Property* clone() const override { return new ChildMarginProperty(*this); }
};

class MultiSelectionProperty : public Property
{
public:
    MultiSelectionProperty();
    String get(const PropertyReceiver*) const override { return ""; }
    void set(PropertyReceiver* receiver, const String& value) override;
    Property* clone() const override { return new MultiSelectionProperty(*this); }
};

//! The leading decimal number of `text`, as atof reads it (0 when there is none); a
//! number no float can hold is refused with InvalidRequestException naming `property`.
float leadingNumber(const String& property, const String& text);
} // namespace NodeItemProperties

} // namespace MoxieLook
} // namespace CEGUI
