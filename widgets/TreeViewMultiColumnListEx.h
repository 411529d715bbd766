// A tree view whose lines carry further columns of text under a list header. The first
// column is the tree itself (indentation, navigation image, icon, text); a host sets the
// other columns' texts on each node (`NodeIndex::SetColumnText`). Columns are the header's
// segments: they size by drag, scroll sideways with the tree, and neither sort nor move.
#pragma once

#include "widgets/TreeView.h"

#include <vector>

namespace CEGUI
{
class ListHeader;

namespace MoxieLook
{
class TreeViewMultiColumnListEx : public TreeView
{
public:
    //! A node with a text per column; column 0 is the node's own text.
    class NodeIndex : public TreeView::Node
    {
    public:
        using Node::Node;

        void SetColumnText(unsigned column, const String& text);
        //! Empty for a column never set.
        const String& GetColumnText(unsigned column) const;

    private:
        std::vector<String> d_columns; //!< columns 1, 2, ...
    };

    static constexpr char ListHeaderName[] = "__auto_listheader__";
    //! Room left of a column's text.
    static constexpr float CellPadding = 4.0f;

    void initialiseComponents() override;

    //! Appends a column headed `title`; ids are the host's, as in CEGUI's list header.
    void addColumn(const String& title, unsigned id, const UDim& width);
    unsigned getColumnCount() const;
    ListHeader* getListHeader() const { return d_header; }
    //! Left edge and width of column `column`, relative to the tree's content origin.
    float getColumnLeft(unsigned column) const;
    float getColumnWidth(unsigned column) const;

protected:
    TreeViewMultiColumnListEx(const String& type, const String& name);

    virtual ListHeader* CreateListHeader(const String& name) const = 0;
    //! As wide as the columns when they reach further than the tree.
    Sizef contentSize() const override;
    //! A row answers the mouse across all its columns, as list rows do.
    float rowHitRight() const override;

private:
    bool columnsChanged(const EventArgs& e);
    bool contentScrolled(const EventArgs& e);

    ListHeader* d_header = nullptr;
};

} // namespace MoxieLook
} // namespace CEGUI
