// A vector that keeps its first few elements in itself.
#pragma once

// GCC 12 takes the moved-from inline storage for shorter than it is when it inlines a move.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wstringop-overread"
#endif
#include <boost/container/small_vector.hpp>
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic pop
#endif

#include "document/color.h"
#include "geometry/point.h"
