// A frame of up to eight images around a rectangle: corners at their own size, edges
// stretched between them. Any piece may be missing; it then takes no room.
#pragma once

#include <CEGUI/ColourRect.h>
#include <CEGUI/Rect.h>
#include <array>
#include <initializer_list>

namespace CEGUI
{
class GeometryBuffer;
class Image;

namespace MoxieLook
{
class QuadBatch;

class NinePieceFrame
{
public:
    //! The order in which the pieces are set and drawn.
    enum Piece
    {
        TopLeft,
        TopRight,
        BottomLeft,
        BottomRight,
        Left,
        Top,
        Right,
        Bottom,
        PieceCount
    };

    void setImages(const Image* topLeft, const Image* topRight, const Image* bottomLeft,
                   const Image* bottomRight, const Image* left, const Image* top,
                   const Image* right, const Image* bottom);
    //! Looks the eight pieces up in the "MoxieLook" imageset; an empty name leaves a gap.
    void setImages(const std::array<const char*, PieceCount>& names);
    const Image* getImage(Piece piece) const { return d_images[piece]; }

    void setSize(const Sizef& size) { d_size = size; }
    const Sizef& getSize() const { return d_size; }

    //! The colours span the whole frame; each piece takes its share of the gradient.
    void setColours(const ColourRect& colours) { d_colours = colours; }
    const ColourRect& getColours() const { return d_colours; }

    //! Width or height a piece takes, 0 when it is missing.
    float pieceWidth(Piece piece) const;
    float pieceHeight(Piece piece) const;

    //! The rectangle inside the left, top, right and bottom edges.
    Rectf innerRect(const Rectf& outer) const;

    void draw(GeometryBuffer& buffer, const Vector2f& position, const Rectf* clip) const;

private:
    void drawPiece(QuadBatch& batch, Piece piece, const Rectf& dest, const Vector2f& origin,
                   const Rectf* clip) const;

    std::array<const Image*, PieceCount> d_images{};
    Sizef d_size{0.0f, 0.0f};
    ColourRect d_colours{Colour(1.0f, 1.0f, 1.0f, 1.0f)};
};

//! A look's state frames all follow the window's size...
void sizeFrames(std::initializer_list<NinePieceFrame*> frames, const Sizef& size);
//! ...and its alpha, keeping each frame's own colours.
void fadeFrames(std::initializer_list<NinePieceFrame*> frames, float alpha);

} // namespace MoxieLook
} // namespace CEGUI
