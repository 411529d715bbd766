// The gallery by keys alone: every widget that takes the focus reached by Tab (each frame
// window its own round), operated with Space, Return and the arrows, drop lists closed with
// Escape.
#pragma once

#include <cstddef>

namespace gallery
{
struct TourResult
{
    std::size_t focusable = 0; //!< widgets on the page that take the focus
    std::size_t reached = 0;   //!< of those, reached by Tab
    std::size_t operated = 0;  //!< keys that a reached widget took
    std::size_t rounds = 0;    //!< Tab rounds begun by putting the focus somewhere
    std::size_t frames = 0;    //!< outermost frame windows: each a Tab round of its own
};

//! Tours the default GUI context's sheet.
TourResult tourByKeys();

} // namespace gallery
