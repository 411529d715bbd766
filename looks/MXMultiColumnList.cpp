#include "looks/MXMultiColumnList.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "looks/AutoParts.h"
#include "looks/InnerBars.h"
#include "looks/ListDrawing.h"
#include "looks/MXListHeader.h"

#include <CEGUI/widgets/ListHeader.h>
#include <CEGUI/widgets/ListboxItem.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <algorithm>

namespace CEGUI
{
namespace MoxieLook
{
void RowTops::measure(const MultiColumnList& list)
{
    const uint rows = list.getRowCount();
    if (d_valid && rowCount() == rows)
        return;
    d_tops.assign(rows + 1, 0.0f);
    for (uint row = 0; row < rows; ++row)
        d_tops[row + 1] = d_tops[row] + list.getHighestRowItemHeight(row);
    d_valid = true;
}

std::size_t RowTops::firstBelow(float y) const
{
    if (d_tops.size() < 2)
        return 0;
    // The first row whose bottom lies below y.
    const auto bottom = std::upper_bound(d_tops.begin() + 1, d_tops.end(), y);
    return static_cast<std::size_t>(bottom - (d_tops.begin() + 1));
}

namespace
{
std::array<const char*, NinePieceFrame::PieceCount> framePieces(const char* prefix,
                                                                std::vector<std::string>& names)
{
    static const char* const suffixes[] = {"TopLeft", "TopRight", "BottomLeft", "BottomRight",
                                           "Left",    "Top",      "Right",      "Bottom"};
    names.clear();
    for (const char* suffix : suffixes)
        names.push_back(std::string(prefix) + suffix);
    std::array<const char*, NinePieceFrame::PieceCount> pieces{};
    for (std::size_t i = 0; i < pieces.size(); ++i)
        pieces[i] = names[i].c_str();
    return pieces;
}
} // namespace

template <typename Base>
MultiColumnListLookOf<Base>::MultiColumnListLookOf(const String& type, const String& name,
                                                   const char* framePrefix, const char* background,
                                                   const char* selectionBrush)
    : RedrawnWhenUncovered<Base>(type, name), d_background(&lookImage(background)),
      d_selectionBrush(&lookImage(selectionBrush))
{
    std::vector<std::string> names;
    d_frame.setImages(framePieces(framePrefix, names));
    this->setMouseCursor(&lookImage(MouseCursorImageName));
    this->setWindowRenderer(MXMultiColumnListRenderer::TypeName);
}

template <typename Base>
ListHeader* MultiColumnListLookOf<Base>::createListHeader(const String& name) const
{
    return createAutoPart<ListHeader>(ListHeaderTypeName, name, "a list's header");
}

template <typename Base>
Scrollbar* MultiColumnListLookOf<Base>::createVertScrollbar(const String& name) const
{
    return createAutoPart<Scrollbar>(VertScrollbarTypeName, name, "a list's scroll bar");
}

template <typename Base>
Scrollbar* MultiColumnListLookOf<Base>::createHorzScrollbar(const String& name) const
{
    return createAutoPart<Scrollbar>(HorzScrollbarTypeName, name, "a list's scroll bar");
}

template <typename Base>
void MultiColumnListLookOf<Base>::initialiseComponents()
{
    Window* parts[] = {
        this->isChild(Base::ListHeaderName) ? nullptr : createListHeader(Base::ListHeaderName),
        this->isChild(Base::VertScrollbarName) ? nullptr
                                               : createVertScrollbar(Base::VertScrollbarName),
        this->isChild(Base::HorzScrollbarName) ? nullptr
                                               : createHorzScrollbar(Base::HorzScrollbarName)};
    for (Window* part : parts)
        if (part)
        {
            part->setNonClient(true);
            this->addChild(part);
        }
    // Bars come and go with the contents; the header and the rows make room for them.
    for (Window* bar : {static_cast<Window*>(this->getVertScrollbar()),
                        static_cast<Window*>(this->getHorzScrollbar())})
        for (const String& event : {Window::EventShown, Window::EventHidden})
            bar->subscribeEvent(event,
                                [this]
                                {
                                    performChildWindowLayout();
                                    d_rows.invalidate();
                                });
    Base::initialiseComponents();
    performChildWindowLayout();
}

template <typename Base>
typename MultiColumnListLookOf<Base>::Parts MultiColumnListLookOf<Base>::parts() const
{
    Parts found{partOrNull<ListHeader>(*this, Base::ListHeaderName),
                partOrNull<Scrollbar>(*this, Base::VertScrollbarName),
                partOrNull<Scrollbar>(*this, Base::HorzScrollbarName)};
    if (!found.header || !found.vert || !found.horz)
        return {};
    return found;
}

template <typename Base>
Rectf MultiColumnListLookOf<Base>::frameInner() const
{
    return d_frame.innerRect(Rectf(Vector2f(0, 0), this->getPixelSize()));
}

template <typename Base>
void MultiColumnListLookOf<Base>::performChildWindowLayout(bool nonclientSizedHint,
                                                           bool clientSizedHint)
{
    Base::performChildWindowLayout(nonclientSizedHint, clientSizedHint);
    const Parts parts = this->parts();
    if (!parts.header)
        return; // still being built
    const Rectf inner = frameInner();
    ListHeader* header = parts.header;
    const float right = parts.vert->isVisible() ? ScrollbarThickness : 0.0f;
    const auto* look = dynamic_cast<const MXListHeader*>(header);
    const float headerHeight = look ? look->naturalHeight() : header->getPixelSize().d_height;
    header->setArea(
        UVector2(cegui_absdim(inner.left()), cegui_absdim(inner.top())),
        USize(cegui_absdim(std::max(inner.getWidth() - right, 0.0f)), cegui_absdim(headerHeight)));
    layOutInnerBars(parts.vert, parts.horz, inner, ScrollbarThickness);
}

template <typename Base>
Rectf MultiColumnListLookOf<Base>::listRenderArea() const
{
    return listRenderArea(this->parts());
}

template <typename Base>
Rectf MultiColumnListLookOf<Base>::listRenderArea(const Parts& parts) const
{
    Rectf area = frameInner();
    // CEGUI's list and bars chase each other's positions until they compare equal: a size
    // that is no number would never let them.
    if (!isFiniteRect(area))
        return Rectf(0, 0, 0, 0);
    if (!parts.header)
        return area;
    area.d_min.d_y += parts.header->getPixelSize().d_height;
    return areaBesideInnerBars(area, parts.vert, parts.horz, ScrollbarThickness);
}

template <typename Base>
void MultiColumnListLookOf<Base>::drawList()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = this->getGeometryBuffer();
    const float alpha = this->getEffectiveAlpha();
    const ColourRect white = withAlpha(ColourRect(Colour(0x00FFFFFF)), alpha);
    drawImage(buffer, *d_background, frameInner(), nullptr, white);
    d_frame.setSize(this->getPixelSize());
    d_frame.setColours(white);
    d_frame.draw(buffer, Vector2f(0, 0), nullptr);

    const Parts parts = this->parts();
    if (!parts.header)
        return;
    const Rectf area = listRenderArea(parts);
    const ListHeader* header = parts.header;
    const uint columns = header->getColumnCount();
    const float dx = parts.horz->getScrollPosition();
    const float dy = parts.vert->getScrollPosition();
    std::vector<float> lefts(columns + 1, area.left() - dx);
    for (uint column = 0; column < columns; ++column)
        lefts[column + 1] =
            lefts[column] + header->getSegmentFromColumn(column).getPixelSize().d_width;

    d_rows.measure(*this);
    for (std::size_t row = d_rows.firstBelow(dy);
         row < d_rows.rowCount() && d_rows.top(row) - dy < area.getHeight(); ++row)
    {
        const float top = area.top() + d_rows.top(row) - dy;
        const float bottom = area.top() + d_rows.top(row + 1) - dy;
        for (uint column = 0; column < columns; ++column)
        {
            ListboxItem* item = this->d_grid[row][column];
            if (!item)
                continue;
            ListDrawing::styleItem(*item, d_selectionBrush);
            ListDrawing::drawItem(
                *item, buffer, Rectf(lefts[column], top, lefts[column + 1], bottom), alpha, &area);
        }
    }
}

template <typename Base>
void MultiColumnListLookOf<Base>::onListContentsChanged(WindowEventArgs& e)
{
    d_rows.invalidate();
    Base::onListContentsChanged(e);
}

template <typename Base>
void MultiColumnListLookOf<Base>::onSortColumnChanged(WindowEventArgs& e)
{
    d_rows.invalidate();
    Base::onSortColumnChanged(e);
}

template <typename Base>
void MultiColumnListLookOf<Base>::onSortDirectionChanged(WindowEventArgs& e)
{
    d_rows.invalidate();
    Base::onSortDirectionChanged(e);
}

template <typename Base>
void MultiColumnListLookOf<Base>::onListColumnSized(WindowEventArgs& e)
{
    Base::onListColumnSized(e);
    this->invalidate();
}

template <typename Base>
void MultiColumnListLookOf<Base>::onListColumnMoved(WindowEventArgs& e)
{
    Base::onListColumnMoved(e);
    this->invalidate();
}

template <typename Base>
void MultiColumnListLookOf<Base>::onFontChanged(WindowEventArgs& e)
{
    d_rows.invalidate();
    Base::onFontChanged(e);
}

template <typename Base>
void MultiColumnListLookOf<Base>::onSized(ElementEventArgs& e)
{
    Base::onSized(e);
    d_frame.setSize(this->getPixelSize());
}

template class MultiColumnListLookOf<MultiColumnList>;
template class MultiColumnListLookOf<MultiColumnListEx>;

MXMultiColumnList::MXMultiColumnList(const String& type, const String& name)
    : MultiColumnListLookOf<MultiColumnList>(type, name, FramePrefix, BackgroundImageName,
                                             SelectionBrushImageName)
{
}

MXMultiColumnListEx::MXMultiColumnListEx(const String& type, const String& name)
    : MultiColumnListLookOf<MultiColumnListEx>(type, name, "StaticFrame", BackgroundImageName,
                                               SelectionBrushImageName)
{
}

} // namespace MoxieLook
} // namespace CEGUI
