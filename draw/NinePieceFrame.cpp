#include "draw/NinePieceFrame.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"

#include <CEGUI/Image.h>
#include <algorithm>

namespace CEGUI
{
namespace MoxieLook
{
void NinePieceFrame::setImages(const Image* topLeft, const Image* topRight, const Image* bottomLeft,
                               const Image* bottomRight, const Image* left, const Image* top,
                               const Image* right, const Image* bottom)
{
    d_images = {topLeft, topRight, bottomLeft, bottomRight, left, top, right, bottom};
}

void NinePieceFrame::setImages(const std::array<const char*, PieceCount>& names)
{
    for (int piece = 0; piece < PieceCount; ++piece)
        d_images[piece] = (names[piece] && *names[piece]) ? &lookImage(names[piece]) : nullptr;
}

float NinePieceFrame::pieceWidth(Piece piece) const
{
    return d_images[piece] ? d_images[piece]->getRenderedSize().d_width : 0.0f;
}

float NinePieceFrame::pieceHeight(Piece piece) const
{
    return d_images[piece] ? d_images[piece]->getRenderedSize().d_height : 0.0f;
}

Rectf NinePieceFrame::innerRect(const Rectf& outer) const
{
    return Rectf(outer.left() + pieceWidth(Left), outer.top() + pieceHeight(Top),
                 outer.right() - pieceWidth(Right), outer.bottom() - pieceHeight(Bottom));
}

void NinePieceFrame::draw(GeometryBuffer& buffer, const Vector2f& position, const Rectf* clip) const
{
    const float w = d_size.d_width;
    const float h = d_size.d_height;
    const float x = position.d_x;
    const float y = position.d_y;

    const float tlW = pieceWidth(TopLeft), tlH = pieceHeight(TopLeft);
    const float trW = pieceWidth(TopRight), trH = pieceHeight(TopRight);
    const float blW = pieceWidth(BottomLeft), blH = pieceHeight(BottomLeft);
    const float brW = pieceWidth(BottomRight), brH = pieceHeight(BottomRight);

    std::array<Rectf, PieceCount> dest;
    dest[TopLeft] = Rectf(x, y, x + tlW, y + tlH);
    dest[TopRight] = Rectf(x + w - trW, y, x + w, y + trH);
    dest[BottomLeft] = Rectf(x, y + h - blH, x + blW, y + h);
    dest[BottomRight] = Rectf(x + w - brW, y + h - brH, x + w, y + h);
    dest[Left] = Rectf(x, y + tlH, x + pieceWidth(Left), y + h - blH);
    dest[Top] = Rectf(x + tlW, y, x + w - trW, y + pieceHeight(Top));
    dest[Right] = Rectf(x + w - pieceWidth(Right), y + trH, x + w, y + h - brH);
    dest[Bottom] = Rectf(x + blW, y + h - pieceHeight(Bottom), x + w - brW, y + h);

    QuadBatch batch(buffer);
    for (int piece = 0; piece < PieceCount; ++piece)
        drawPiece(batch, static_cast<Piece>(piece), dest[piece], position, clip);
}

void NinePieceFrame::drawPiece(QuadBatch& batch, Piece piece, const Rectf& dest,
                               const Vector2f& origin, const Rectf* clip) const
{
    const Image* image = d_images[piece];
    if (!image || dest.getWidth() <= 0.0f || dest.getHeight() <= 0.0f)
        return;

    if (d_colours.isMonochromatic() || d_size.d_width <= 0.0f || d_size.d_height <= 0.0f)
    {
        batch.add(*image, dest, clip, d_colours);
        return;
    }

    const float left = (dest.left() - origin.d_x) / d_size.d_width;
    const float right = (dest.right() - origin.d_x) / d_size.d_width;
    const float top = (dest.top() - origin.d_y) / d_size.d_height;
    const float bottom = (dest.bottom() - origin.d_y) / d_size.d_height;
    batch.add(*image, dest, clip,
              d_colours.getSubRectangle(std::clamp(left, 0.0f, 1.0f), std::clamp(right, 0.0f, 1.0f),
                                        std::clamp(top, 0.0f, 1.0f),
                                        std::clamp(bottom, 0.0f, 1.0f)));
}

void sizeFrames(std::initializer_list<NinePieceFrame*> frames, const Sizef& size)
{
    for (NinePieceFrame* frame : frames)
        frame->setSize(size);
}

void fadeFrames(std::initializer_list<NinePieceFrame*> frames, float alpha)
{
    for (NinePieceFrame* frame : frames)
        frame->setColours(withAlpha(frame->getColours(), alpha));
}

} // namespace MoxieLook
} // namespace CEGUI
