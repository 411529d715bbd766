// A tree of text lines drawn straight into the window, indented per level, inside a
// scrollable pane. Titles (nodes with children) open and close by their navigation image;
// every line can be hovered, selected and double-clicked, each with its event.
//
// Drawing is cached for speed: the lines are laid out (positions, text widths) only when
// the tree changes, and then only under the nodes that changed (widgets/TreeViewLineIndex);
// a redraw puts only the lines in view into the geometry. Every observable result is that
// of laying out and drawing every node on every draw: the hit rectangle of each shown node
// (moved with the scroll position), the clipped flags, the content area, the events. Hit
// tests of the mouse handlers (widgets/TreeViewInput.cpp) use the laid-out lines, so that
// hovering costs a binary search, not a walk of the whole tree.
#pragma once

#include "draw/ClipWatch.h"
#include "draw/RedrawnWhenUncovered.h"

#include <CEGUI/Window.h>
#include <cstdint>
#include <exception>
#include <limits>
#include <list>
#include <memory>
#include <string>
#include <vector>

namespace CEGUI
{
class Font;
class GeometryBuffer;
class ScrollablePane;

namespace MoxieLook
{
class TreeView : public RedrawnWhenUncovered<Window>
{
public:
    class Node;

    class ItemEventArgs : public EventArgs
    {
    public:
        ItemEventArgs() = default;
        explicit ItemEventArgs(Node* item) : node(item) {}
        Node* node = nullptr;
    };

    class OutOfBound : public std::exception
    {
    public:
        explicit OutOfBound(std::string message) : d_message(std::move(message)) {}
        const char* what() const noexcept override { return d_message.c_str(); }

    private:
        std::string d_message;
    };

    //! Where one shown line was laid out.
    struct Line
    {
        Node* node;
        float x;         //!< the line's left edge (the node's indentation)
        float y;         //!< the line's top
        float height;    //!< H
        float navWidth;  //!< the navigation image's width
        float iconWidth; //!< the icon's width, 0 without one
        float textRight; //!< right end of the text
    };
    struct LineChunk;
    class LineIndex;

    class Node
    {
    public:
        using Children = std::list<std::shared_ptr<Node>>;

        Node(const String& name, const String& text, Node* parent, void* data);
        virtual ~Node();
        Node(const Node&) = delete;
        Node& operator=(const Node&) = delete;

        void SetName(const String& name) { d_name = name; }
        const String& GetName() const { return d_name; }
        void SetText(const String& text);
        const String& GetText() const { return d_text; }
        void SetIcon(const Image* icon);
        const Image* GetIcon() const { return d_icon; }
        //! Until the line is drawn again, which measures it anew.
        void SetIconWidth(unsigned width);
        //! Whole-pixel width of the navigation image at the last draw: the navigator's zone.
        unsigned GetIconWidth() const { return d_iconWidth; }
        void SetData(void* data) { d_data = data; }
        void* GetData() const { return d_data; }

        Node* GetParent() const { return d_parent; }
        unsigned GetDepth() const;
        std::size_t GetNbChildren() const { return d_children.size(); }
        bool IsLeaf() const { return d_children.empty(); }
        bool IsOpened() const { return IsLeaf() || d_opened; }
        bool IsSelected() const { return d_selected; }
        bool IsHovered() const { return d_hovered; }
        bool IsVisible() const { return d_visible; }
        //! The text ran past the right edge of the clip area at the last draw.
        bool IsClipped() const;
        unsigned GetPixelHeight() const { return d_pixelHeight; }
        //! Screen rectangle of the line at the last draw (its top 3 pixels left out).
        Rectf GetHitRect() const;
        //! The tree that last drew this node, or null.
        TreeView* GetOwner() const { return d_owner; }

        const Children& GetChildren() const { return d_children; }
        std::size_t GetNbDescendants() const;
        int GetChildIndex(const Node* child) const;

        // The one child cursor of this node.
        Node* GetFirstChild();
        Node* GetLastChild();
        bool HasNextChild() const;
        bool HasPreviousChild() const;
        //! TreeView::OutOfBound past either end.
        Node* GetNextChild();
        Node* GetPreviousChild();
        //! TreeView::OutOfBound for an index outside the children.
        Node* GetChild(int index);
        //! Null when no direct child has the name.
        Node* GetChild(const String& name);

        Node* GetNode(const String& name);
        Node* GetSelectedNode();
        void Select(bool select, bool recursive);
        void SetPixelHeight(unsigned height, bool recursive);
        Node* GetNodeAt(const Vector2f& point, bool& onNavigator);
        Node* UpdateHoveringState(const Vector2f& point);

        virtual Node* Add(const String& name, const String& text, void* data);
        virtual bool Remove(Node* node);
        virtual bool Remove(const String& name);
        virtual void RemoveAll();
        virtual void SetOpened(bool opened);
        //! Draws this node's line as laid out in `line` (window-local pixels), clipped.
        virtual void Render(GeometryBuffer& buffer, const Line& line, const Rectf& clip,
                            TreeView& tree) = 0;
        virtual Node* CreateNode(const String& name, const String& text, Node* parent,
                                 void* data) = 0;
        //! The image before the text: a leaf's, an opened or a closed title's.
        virtual const Image* GetNavigationImage() const = 0;

    protected:
        bool IsRoot() const { return d_parent == nullptr; }
        //! The tree this node belongs to, through its root, or null.
        TreeView* tree() const;
        //! Tells the tree that lines or their looks changed.
        void changed(bool relayout);

    private:
        friend class TreeView;

        Node* hitTest(const Vector2f& point, bool& onNavigator, float rowRight);
        //! The nodes a hover walk flagged: one, or several.
        struct Flagged
        {
            Node* first = nullptr;
            bool several = false;
        };
        //! UpdateHoveringState's walk, without asking for the tree at every node.
        Node* updateHover(const Vector2f& point, float rowRight, Flagged& flagged);
        void SetVisible(bool visible);
        //! Takes `child` out of the children, telling the tree.
        void eraseChild(Children::iterator child);
        void selectIn(bool select, bool recursive, TreeView* owner);
        float textWidth(const Font& font, std::uint32_t epoch);

        Node* d_parent;
        TreeView* d_owner = nullptr;
        bool d_hovered = false;
        bool d_visible = true;
        bool d_clipped = false;
        String d_name;
        String d_text;
        const Image* d_icon = nullptr;
        void* d_data;
        Rectf d_hitRect{0, 0, 0, 0};
        //! The hit rectangle is relative to its line's chunk of the owner's content (the node
        //! is laid out now) rather than frozen in screen pixels.
        bool d_hitRelative = false;
        const LineChunk* d_chunk = nullptr; //!< while d_hitRelative
        float d_textRight = 0;              //!< relative, while d_hitRelative
        unsigned d_pixelHeight = 0;
        bool d_selected = false;
        bool d_opened = true;
        unsigned d_iconWidth = 0;
        Children d_children;
        Children::iterator d_cursor;
        // Text width kept until the text, the font or the tree's metrics change.
        float d_textWidth = 0;
        const Font* d_textWidthFont = nullptr;
        std::uint32_t d_textWidthEpoch = 0;
        bool d_textWidthValid = false;
    };

    static const String EventNamespace;
    static const String EventLeafItemClicked;
    static const String EventLeafItemDoubleClicked;
    static const String EventTitleItemClicked;
    static const String EventTitleItemDoubleClicked;
    static const String EventTitleOpenStateChanged;
    static const String EventTitleFocusedItemChanged;

    ~TreeView() override;

    void initialiseComponents() override;

    Node* GetRootNode() const { return d_root.get(); }
    Node* GetNode() const { return d_root.get(); }
    ScrollablePane* GetScrollablePane() const { return d_pane; }
    bool RemoveNode(Node* node);
    Node* GetNodeForName(const String& name, Node* start = nullptr);
    Node* GetSelectedNode();
    void SetSelectionByName(const String& name);
    void SetSelectionByNode(Node* node);

    void SetPixelIndent(unsigned indent);
    unsigned GetPixelIndent() const { return d_pixelIndent; }
    void SetPixelNodeHeight(unsigned height);
    unsigned GetPixelNodeHeight() const { return d_pixelNodeHeight; }
    //! CEGUI's UnknownObjectException for a font the font manager lacks.
    void SetTitleFont(const String& name);
    //! The title font, or the window's own when none is set.
    const Font* GetTitleFont() const;

    void SetNormalTitleTextColour(const Colour& colour);
    void SetHoverTitleTextColour(const Colour& colour);
    void SetSelectedTitleTextColour(const Colour& colour);
    void SetNormalLeafTextColour(const Colour& colour);
    void SetHoverLeafTextColour(const Colour& colour);
    void SetSelectedLeafTextColour(const Colour& colour);
    const Colour& GetNormalTitleTextColour() const { return d_normalTitleColour; }
    const Colour& GetHoverTitleTextColour() const { return d_hoverTitleColour; }
    const Colour& GetSelectedTitleTextColour() const { return d_selectedTitleColour; }
    const Colour& GetNormalLeafTextColour() const { return d_normalLeafColour; }
    const Colour& GetHoverLeafTextColour() const { return d_hoverLeafColour; }
    const Colour& GetSelectedLeafTextColour() const { return d_selectedLeafColour; }
    const Colour& GetColour(bool leaf, bool selected, bool hovered) const;

    //! The node the mouse last moved over (may be null).
    Node* GetHoveredNode() const { return d_hoveredNode; }
    //! The keyboard inside the tree: Up, Down, Page Up, Page Down, Home and End move the
    //! selection along the lines (firing the click events) and keep it in view; Left closes
    //! a title or goes to its parent, Right opens it. False for other keys.
    bool moveByKey(Key::Scan key);
    //! Handler of the pane's scroll event.
    bool Update(const EventArgs& args);

    //! The lines laid out at the last draw, in order (relative to the content origin).
    std::size_t GetLaidOutLineCount() const;
    //! Screen position of the content origin at the last draw.
    const Vector2f& GetContentOrigin() const { return d_origin; }

protected:
    TreeView(const String& type, const String& name);

    virtual Node* CreateRootNode() = 0;
    virtual ScrollablePane* CreateScrollablePane() = 0;

    //! Lays the tree out when it changed, then draws the lines in view.
    void RenderNodes(GeometryBuffer& buffer);
    //! The area the lines are drawn in and clipped to, in screen pixels.
    Rectf linesArea() const;
    //! The content size the pane scrolls over: the laid-out tree and one spare line.
    virtual Sizef contentSize() const;
    //! The screen x up to which every line answers the mouse, whatever its text's length;
    //! none by default: a line answers over its text.
    virtual float rowHitRight() const { return -std::numeric_limits<float>::infinity(); }

    void onMouseLeaves(MouseEventArgs& e) override;
    void onMouseMove(MouseEventArgs& e) override;
    void onMouseWheel(MouseEventArgs& e) override;
    void onMouseButtonDown(MouseEventArgs& e) override;
    void onMouseDoubleClicked(MouseEventArgs& e) override;
    void onFontChanged(WindowEventArgs& e) override;
    Rectf getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const override;

public:
    //! Only the lines in view are drawn: more in view means drawing again.
    void notifyScreenAreaChanged(bool recursive = true) override;

protected:
    //! Lines changed shape (relayout) or only look (redraw).
    //! Lines or their looks changed; `relayout`: everywhere.
    void nodesChanged(bool relayout);
    //! `node`'s own line and its subtree's need laying out again.
    void subtreeChanged(Node& node);
    //! `node` and its subtree are about to leave the tree.
    void nodeLeaving(const Node& node);
    //! Unselects every node.
    void clearSelection();
    void rememberSelected(Node& node);

private:
    friend class Node;

    void addTreeViewProperties();
    void layOut();
    //! Whether layOutAgain can: `node` has a line to find its place by, or no line of its
    //! subtree can be shown.
    bool canLayOutAgain(const Node& node) const;
    //! Lays `node`'s subtree out again where its lines were.
    void layOutAgain(Node& node);
    //! The pre-order walk from `from` at indentation `x`: its lines, its strays (visible
    //! nodes without a line); nodes that lose their line keep their last screen rectangle.
    void walk(Node& from, float x, bool shown, std::vector<Line>& lines);
    void place(const Line& line, const LineChunk& chunk);
    //! The mouse handlers' hit test: the laid-out lines, exactly as GetNodeAt on the root.
    Node* nodeAt(const Vector2f& point, bool& onNavigator);
    //! `several`: more than one node's rectangle holds the point.
    Node* nodeAt(const Vector2f& point, bool& onNavigator, bool& several);
    Node* hoverAt(const Vector2f& point);
    void fireItemEvent(const String& name, Node* node);

    ScrollablePane* d_pane = nullptr;
    unsigned d_pixelIndent = 0;
    Colour d_normalTitleColour;
    Colour d_hoverTitleColour;
    Colour d_selectedTitleColour;
    Colour d_normalLeafColour;
    Colour d_hoverLeafColour;
    Colour d_selectedLeafColour;
    const Font* d_titleFont = nullptr;
    unsigned d_pixelNodeHeight = 0;
    std::unique_ptr<Node> d_root;
    Node* d_hoveredNode = nullptr;

    // The cache of the last layout.
    std::unique_ptr<LineIndex> d_lines;
    //! Visible nodes with no line: hit where their last line was (or at the origin).
    std::vector<Node*> d_strays;
    std::vector<Node*> d_changed;       //!< subtrees to lay out again
    std::vector<Node*> d_selectedNodes; //!< every node selected since the last clearing
    std::size_t d_selectedKept = 0;     //!< its size when last rid of unselected nodes
    bool d_layOutAll = true;
    Sizef d_laidOutSize{0, 0};
    bool d_layoutValid = false;
    bool d_indexValid = false;     //!< d_lines and d_strays are those of the last draw
    bool d_hoverFlagsKnown = true; //!< only d_flaggedNode may carry a hover flag
    Node* d_flaggedNode = nullptr;
    Vector2f d_origin{0, 0};
    float d_clipRight = 0;
    std::uint32_t d_metricsEpoch = 1;
    Rectf d_contentArea{0, 0, 0, 0};
    ClipWatch d_clipWatch;
};

namespace TreeViewProperties
{
#define MOXIE_TREE_PROPERTY(Class)                                                                 \
    class Class : public Property                                                                  \
    {                                                                                              \
    public:                                                                                        \
        Class();                                                                                   \
        String get(const PropertyReceiver* receiver) const override;                               \
        void set(PropertyReceiver* receiver, const String& value) override;                        \
        Property* clone() const override { return new Class(*this); }                              \
    };
MOXIE_TREE_PROPERTY(PixelIndentProperty)
MOXIE_TREE_PROPERTY(PixelNodeHeightProperty)
MOXIE_TREE_PROPERTY(TitleFontProperty)
#undef MOXIE_TREE_PROPERTY

//! One of the six text colours, reached through the tree's getter and setter.
class TextColourProperty : public Property
{
public:
    using Getter = const Colour& (TreeView::*)() const;
    using Setter = void (TreeView::*)(const Colour&);
    TextColourProperty(const String& name, const String& help, const String& defaultValue,
                       Getter getter, Setter setter);
    String get(const PropertyReceiver* receiver) const override;
    void set(PropertyReceiver* receiver, const String& value) override;

private:
    Getter d_getter;
    Setter d_setter;
};

#define MOXIE_TREE_COLOUR_PROPERTY(Class)                                                          \
    class Class : public TextColourProperty                                                        \
    {                                                                                              \
    public:                                                                                        \
        static const String DefaultTextColour;                                                     \
        Class();                                                                                   \
        Property* clone() const override { return new Class(*this); }                              \
    };
MOXIE_TREE_COLOUR_PROPERTY(NormalTitleTextColourProperty)
MOXIE_TREE_COLOUR_PROPERTY(HoverTitleTextColourProperty)
MOXIE_TREE_COLOUR_PROPERTY(SelectedTitleTextColourProperty)
MOXIE_TREE_COLOUR_PROPERTY(NormalLeafTextColourProperty)
MOXIE_TREE_COLOUR_PROPERTY(HoverLeafTextColourProperty)
MOXIE_TREE_COLOUR_PROPERTY(SelectedLeafTextColourProperty)
#undef MOXIE_TREE_COLOUR_PROPERTY
} // namespace TreeViewProperties

} // namespace MoxieLook
} // namespace CEGUI
