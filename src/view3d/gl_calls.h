// OpenGL as far as the 3D view calls it. Only sources include this: on Windows much comes with it.
#pragma once

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#undef far
#undef near
#endif
#include <GL/gl.h>

#include <cstddef>

namespace trassix {

/// What newer drivers have besides: arrays that lie with them, and many drawn by one call.
struct BufferCalls {
  static constexpr unsigned kVertices = 0x8892;
  static constexpr unsigned kIndices = 0x8893;
  static constexpr unsigned kStatic = 0x88E4;

  void(APIENTRY* generate)(int, unsigned*) = nullptr;
  void(APIENTRY* bind)(unsigned, unsigned) = nullptr;
  void(APIENTRY* fill)(unsigned, std::ptrdiff_t, const void*, unsigned) = nullptr;
  void(APIENTRY* refill)(unsigned, std::ptrdiff_t, std::ptrdiff_t, const void*) = nullptr;
  void(APIENTRY* release)(int, const unsigned*) = nullptr;
  void(APIENTRY* drawMany)(unsigned, const int*, unsigned, const void* const*, int) = nullptr;

  bool usable() const { return drawMany != nullptr; }
};

/// What the driver of a context can do beyond drawing triangles from memory; nothing by itself.
struct GlAbilities {
  BufferCalls buffers; ///< not usable with a driver before OpenGL 1.5
  bool stencil = false;
  bool smooths = false;     ///< edges, with several samples for a pixel
  bool byProcessor = false; ///< which pays for each sample as for another picture

  static GlAbilities ofContext(); ///< of the current one
};

constexpr unsigned kMultisample = 0x809D;

} // namespace trassix
