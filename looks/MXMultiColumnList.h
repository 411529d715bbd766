// "MoxieLook/MultiColumnList" and "MoxieLook/MultiColumnListEx": a framed list under a
// "MoxieLook/ListHeader", with the module's scroll bars. Only the rows in view are drawn:
// row tops are summed once after the contents, sorting or font change, and a draw finds its
// first row by binary search.
#pragma once

#include "draw/NinePieceFrame.h"
#include "draw/RedrawnWhenUncovered.h"
#include "looks/LookFactory.h"
#include "looks/LookRendererFactory.h"
#include "widgets/MultiColumnListEx.h"

#include <CEGUI/widgets/MultiColumnList.h>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
//! What the multi-column list renderer asks of either list look.
class MultiColumnListLook
{
public:
    virtual ~MultiColumnListLook() = default;
    virtual Rectf listRenderArea() const = 0;
    virtual void drawList() = 0;
};

//! Rows of a multi-column list and where they start, for drawing what is in view.
class RowTops
{
public:
    void invalidate() { d_valid = false; }
    //! Sums the rows' heights when they may have changed.
    void measure(const MultiColumnList& list);
    //! Top of row `row`; one past the last row gives the total height.
    float top(std::size_t row) const { return d_tops[row]; }
    //! The first row reaching below `y`.
    std::size_t firstBelow(float y) const;
    std::size_t rowCount() const { return d_tops.empty() ? 0 : d_tops.size() - 1; }

private:
    std::vector<float> d_tops;
    bool d_valid = false;
};

template <typename Base>
class MultiColumnListLookOf : public RedrawnWhenUncovered<Base>, public MultiColumnListLook
{
public:
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char ListHeaderTypeName[] = "MoxieLook/ListHeader";
    static constexpr char VertScrollbarTypeName[] = "MoxieLook/VerticalScrollbar";
    static constexpr char HorzScrollbarTypeName[] = "MoxieLook/HorizontalScrollbar";
    static constexpr float ScrollbarThickness = 16.0f;

    MultiColumnListLookOf(const String& type, const String& name, const char* framePrefix,
                          const char* background, const char* selectionBrush);

    void initialiseComponents() override;
    void performChildWindowLayout(bool nonclientSizedHint = false,
                                  bool clientSizedHint = false) override;
    Rectf listRenderArea() const override;
    void drawList() override;

protected:
    // The parts, by their type names.
    virtual ListHeader* createListHeader(const String& name) const;
    virtual Scrollbar* createVertScrollbar(const String& name) const;
    virtual Scrollbar* createHorzScrollbar(const String& name) const;
    void onListContentsChanged(WindowEventArgs& e) override;
    void onSortColumnChanged(WindowEventArgs& e) override;
    void onSortDirectionChanged(WindowEventArgs& e) override;
    void onListColumnSized(WindowEventArgs& e) override;
    void onListColumnMoved(WindowEventArgs& e) override;
    void onFontChanged(WindowEventArgs& e) override;
    void onSized(ElementEventArgs& e) override;
    //! The inside of the frame, window-local.
    Rectf frameInner() const;

    //! Header and bars, all null until all three are made.
    struct Parts
    {
        ListHeader* header = nullptr;
        Scrollbar* vert = nullptr;
        Scrollbar* horz = nullptr;
    };
    Parts parts() const;
    Rectf listRenderArea(const Parts& parts) const;

    NinePieceFrame d_frame;
    const Image* d_background;
    const Image* d_selectionBrush;
    RowTops d_rows;
};

class MXMultiColumnList : public MultiColumnListLookOf<MultiColumnList>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/MultiColumnList";
    static constexpr char FramePrefix[] = "StaticFrameList";
    static constexpr char BackgroundImageName[] = "StaticFrameFill";
    static constexpr char SelectionBrushImageName[] = "ListboxSelectionBrush";

    MXMultiColumnList(const String& type, const String& name);
};

class MXMultiColumnListEx : public MultiColumnListLookOf<MultiColumnListEx>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/MultiColumnListEx";
    static constexpr char TopLeftImageName[] = "StaticFrameTopLeft";
    static constexpr char TopEdgeImageName[] = "StaticFrameTop";
    static constexpr char TopRightImageName[] = "StaticFrameTopRight";
    static constexpr char LeftEdgeImageName[] = "StaticFrameLeft";
    static constexpr char RightEdgeImageName[] = "StaticFrameRight";
    static constexpr char BottomLeftImageName[] = "StaticFrameBottomLeft";
    static constexpr char BottomEdgeImageName[] = "StaticFrameBottom";
    static constexpr char BottomRightImageName[] = "StaticFrameBottomRight";
    static constexpr char BackgroundImageName[] = "Background";
    static constexpr char SelectionBrushImageName[] = "Background";

    MXMultiColumnListEx(const String& type, const String& name);
};

//! Forwards what CEGUI's multi-column list asks of a renderer to the look.
class MXMultiColumnListRenderer
    : public LookRenderer<MultiColumnListWindowRenderer, MultiColumnListLook>
{
public:
    static constexpr char TypeName[] = "MoxieLook/MultiColumnListRenderer";
    using LookRenderer::LookRenderer;

    void render() override
    {
        if (look())
            look()->drawList();
    }
    Rectf getListRenderArea() const override
    {
        return look() ? look()->listRenderArea() : Rectf(0, 0, 0, 0);
    }
};

using MXMultiColumnListFactory = LookFactory<MXMultiColumnList>;
using MXMultiColumnListExFactory = LookFactory<MXMultiColumnListEx>;
using MXMultiColumnListRendererFactory = LookRendererFactory<MXMultiColumnListRenderer>;

} // namespace MoxieLook
} // namespace CEGUI
