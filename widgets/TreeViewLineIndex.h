// The tree view's laid-out lines, in pre-order, kept in chunks: a change lays out again the
// lines of one subtree and splices them in, and the lines after it move by moving their
// chunks' tops. Line tops are relative to their chunk (whose top is a double), so that a
// tree of millions of lines keeps whole pixels.
#pragma once

#include "widgets/TreeView.h"

#include <functional>
#include <memory>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
struct TreeView::LineChunk
{
    std::vector<Line> lines; //!< tops relative to `top`
    double top = 0;
    float height = 0;
    float right = 0;       //!< the widest line's text end
    std::size_t index = 0; //!< its place among the chunks
};

class TreeView::LineIndex
{
public:
    //! A line: its chunk and its place there; the end is one past the last chunk's last.
    struct Position
    {
        std::size_t chunk = 0;
        std::size_t line = 0;
    };
    //! Told of every line put into a chunk, with its top relative to that chunk.
    using Placed = std::function<void(const Line&, const LineChunk&)>;

    std::size_t size() const { return d_size; }
    Sizef extent() const;

    Position begin() const { return Position{0, 0}; }
    Position end() const;
    bool isEnd(Position at) const { return at.chunk >= d_chunks.size(); }
    Position next(Position at) const;
    //! The line before `at`; `at` itself at the first.
    Position previous(Position at) const;
    //! The last line; the end when there is none.
    Position last() const;
    const Line& at(Position at) const { return d_chunks[at.chunk]->lines[at.line]; }
    //! The line's top in content pixels.
    double topOf(Position at) const;

    //! The line `chunk` holds with top `relativeTop`.
    Position find(const LineChunk& chunk, float relativeTop) const;
    //! The first line whose bottom lies below `y` (or at it, when `inclusive`).
    Position firstEndingAfter(double y, bool inclusive) const;

    //! Puts `fresh` (tops are set here, one under the other) where the lines from `first`
    //! up to `last` were.
    void replace(Position first, Position last, std::vector<Line> fresh, const Placed& placed);
    //! Forgets the node of the line at `at`, which is going; the line stays until replaced.
    void orphan(Position at) { d_chunks[at.chunk]->lines[at.line].node = nullptr; }

private:
    static constexpr std::size_t ChunkLines = 512;

    std::vector<std::unique_ptr<LineChunk>> d_chunks;
    std::size_t d_size = 0;
};

} // namespace MoxieLook
} // namespace CEGUI
