// Where a scroll bar's thumb goes and what its place means, along the bar's own axis.
// Plain functions, so that drawing, dragging and tests agree on one answer.
#pragma once

namespace CEGUI
{
namespace MoxieLook
{
struct ThumbPlacement
{
    float inset;    //!< from the bar's start to the track's start: button + frame
    float track;    //!< length the thumb can use, 0 when the buttons fill the bar
    float length;   //!< of the thumb, never below the minimum
    float free;     //!< how far the thumb can travel (measured before the minimum applies)
    float position; //!< of the thumb's start, from the bar's start
};

//! `barLength` and `buttonLength` along the axis; `frameStart` is the frame's edge at
//! the bar's start.
ThumbPlacement placeThumb(float barLength, float buttonLength, float frameStart, float documentSize,
                          float pageSize, float scrollPosition, float minThumbLength);

//! The scroll position a thumb starting at `thumbStart` stands for. A thumb that cannot
//! move, or a document no longer than its page, stands for 0.
float scrollPositionFromThumb(float thumbStart, float barLength, float inset, float thumbLength,
                              float documentSize, float pageSize);

} // namespace MoxieLook
} // namespace CEGUI
