#include "widgets/TreeViewLineIndex.h"

#include <algorithm>

namespace CEGUI
{
namespace MoxieLook
{
Sizef TreeView::LineIndex::extent() const
{
    float right = 0;
    for (const auto& chunk : d_chunks)
        right = std::max(right, chunk->right);
    const double bottom = d_chunks.empty() ? 0.0 : d_chunks.back()->top + d_chunks.back()->height;
    return Sizef(right, static_cast<float>(bottom));
}

TreeView::LineIndex::Position TreeView::LineIndex::end() const
{
    return Position{d_chunks.size(), 0};
}

TreeView::LineIndex::Position TreeView::LineIndex::next(Position at) const
{
    if (++at.line >= d_chunks[at.chunk]->lines.size())
        at = Position{at.chunk + 1, 0};
    return at;
}

TreeView::LineIndex::Position TreeView::LineIndex::previous(Position at) const
{
    if (isEnd(at))
        return last();
    if (at.line > 0)
        return Position{at.chunk, at.line - 1};
    if (at.chunk == 0)
        return at;
    return Position{at.chunk - 1, d_chunks[at.chunk - 1]->lines.size() - 1};
}

TreeView::LineIndex::Position TreeView::LineIndex::last() const
{
    if (d_chunks.empty())
        return end();
    return Position{d_chunks.size() - 1, d_chunks.back()->lines.size() - 1};
}

double TreeView::LineIndex::topOf(Position at) const
{
    const LineChunk& chunk = *d_chunks[at.chunk];
    return chunk.top + chunk.lines[at.line].y;
}

TreeView::LineIndex::Position TreeView::LineIndex::find(const LineChunk& chunk,
                                                        float relativeTop) const
{
    if (chunk.index >= d_chunks.size() || d_chunks[chunk.index].get() != &chunk)
        return end();
    const auto& lines = chunk.lines;
    const auto line = std::lower_bound(lines.begin(), lines.end(), relativeTop,
                                       [](const Line& l, float top) { return l.y < top; });
    if (line == lines.end() || line->y != relativeTop)
        return end();
    return Position{chunk.index, static_cast<std::size_t>(line - lines.begin())};
}

TreeView::LineIndex::Position TreeView::LineIndex::firstEndingAfter(double y, bool inclusive) const
{
    auto before = [inclusive](double bottom, double at)
    { return inclusive ? bottom < at : bottom <= at; };
    const auto chunk =
        std::lower_bound(d_chunks.begin(), d_chunks.end(), y,
                         [&](const auto& c, double at) { return before(c->top + c->height, at); });
    if (chunk == d_chunks.end())
        return end();
    const double top = (*chunk)->top;
    const auto& lines = (*chunk)->lines;
    const auto line = std::lower_bound(lines.begin(), lines.end(), y,
                                       [&](const Line& l, double at)
                                       { return before(top + l.y + l.height, at); });
    Position found{static_cast<std::size_t>(chunk - d_chunks.begin()),
                   static_cast<std::size_t>(line - lines.begin())};
    if (found.line >= lines.size())
        found = Position{found.chunk + 1, 0};
    return found;
}

void TreeView::LineIndex::replace(Position first, Position last, std::vector<Line> fresh,
                                  const Placed& placed)
{
    // The chunks the change touches, with a neighbour while they hold few lines (so that
    // chunks do not crumble over many changes), gathered and cut again.
    std::size_t from = std::min(first.chunk, d_chunks.size());
    std::size_t to = isEnd(last) ? d_chunks.size() : last.chunk + 1;
    auto gathered = [&]
    {
        std::size_t count = 0;
        for (std::size_t c = from; c < to; ++c)
            count += d_chunks[c]->lines.size();
        return count;
    };
    while (gathered() + fresh.size() < ChunkLines / 2 && (from > 0 || to < d_chunks.size()))
    {
        if (from > 0)
            --from;
        if (to < d_chunks.size())
            ++to;
    }
    auto offsetOf = [&](Position at)
    {
        if (isEnd(at))
            return gathered();
        std::size_t offset = at.line;
        for (std::size_t c = from; c < at.chunk; ++c)
            offset += d_chunks[c]->lines.size();
        return offset;
    };
    const std::size_t firstOffset = offsetOf(first);
    const std::size_t lastOffset = offsetOf(last);

    const std::size_t before = gathered();
    std::vector<Line> lines;
    lines.reserve(before - (lastOffset - firstOffset) + fresh.size());
    std::size_t offset = 0;
    for (std::size_t c = from; c < to; ++c)
        for (const Line& line : d_chunks[c]->lines)
        {
            if (offset == firstOffset)
                lines.insert(lines.end(), fresh.begin(), fresh.end());
            // Lines of nodes gone since are dropped wherever they are.
            if ((offset < firstOffset || offset >= lastOffset) && line.node)
                lines.push_back(line);
            ++offset;
        }
    if (offset <= firstOffset) // the fresh lines go after every gathered one
        lines.insert(lines.end(), fresh.begin(), fresh.end());
    d_size = d_size - before + lines.size();

    const double top = from < d_chunks.size() ? d_chunks[from]->top
                       : from > 0             ? d_chunks[from - 1]->top + d_chunks[from - 1]->height
                                              : 0.0;
    std::vector<std::unique_ptr<LineChunk>> made;
    for (std::size_t i = 0; i < lines.size(); i += ChunkLines)
    {
        auto chunk = std::make_unique<LineChunk>();
        const auto begin = lines.begin() + static_cast<std::ptrdiff_t>(i);
        chunk->lines.assign(
            begin, begin + static_cast<std::ptrdiff_t>(std::min(ChunkLines, lines.size() - i)));
        float y = 0;
        for (Line& line : chunk->lines)
        {
            line.y = y;
            y += line.height;
            chunk->right = std::max(chunk->right, line.textRight);
        }
        chunk->height = y;
        made.push_back(std::move(chunk));
    }
    const std::size_t madeCount = made.size();
    d_chunks.erase(d_chunks.begin() + static_cast<std::ptrdiff_t>(from),
                   d_chunks.begin() + static_cast<std::ptrdiff_t>(to));
    d_chunks.insert(d_chunks.begin() + static_cast<std::ptrdiff_t>(from),
                    std::make_move_iterator(made.begin()), std::make_move_iterator(made.end()));
    double y = top;
    for (std::size_t c = from; c < d_chunks.size(); ++c)
    {
        d_chunks[c]->index = c;
        d_chunks[c]->top = y;
        y += d_chunks[c]->height;
    }
    for (std::size_t c = from; c < from + madeCount; ++c)
        for (const Line& line : d_chunks[c]->lines)
            if (line.node)
                placed(line, *d_chunks[c]);
}

} // namespace MoxieLook
} // namespace CEGUI
