#ifndef _WIN32
#define GL_GLEXT_PROTOTYPES
#endif
#include "view3d/gl_calls.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace trassix {

namespace {

constexpr std::string_view kProcessorRenderers[] = {
    "llvmpipe", "softpipe", "Software Rasterizer", "SwiftShader", "GDI Generic", "Basic Render"};

#ifdef _WIN32
template <class Function>
void find(Function& function, const char* name) {
  function = reinterpret_cast<Function>(reinterpret_cast<void*>(wglGetProcAddress(name)));
}
#endif

bool isAtLeast15() {
  const auto* version = reinterpret_cast<const char*>(glGetString(GL_VERSION));
  int major = 0;
  int minor = 0;
  return version != nullptr && std::sscanf(version, "%d.%d", &major, &minor) == 2 &&
         (major > 1 || minor >= 5);
}

BufferCalls bufferCalls() {
  BufferCalls calls;
  if (!isAtLeast15())
    return calls;
#ifdef _WIN32
  find(calls.generate, "glGenBuffers");
  find(calls.bind, "glBindBuffer");
  find(calls.fill, "glBufferData");
  find(calls.refill, "glBufferSubData");
  find(calls.release, "glDeleteBuffers");
  find(calls.drawMany, "glMultiDrawElements");
#else
  calls.generate = glGenBuffers;
  calls.bind = glBindBuffer;
  calls.fill = glBufferData;
  calls.refill = glBufferSubData;
  calls.release = glDeleteBuffers;
  calls.drawMany = glMultiDrawElements;
#endif
  return calls;
}

} // namespace

GlAbilities GlAbilities::ofContext() {
  constexpr GLenum kSamples = 0x80A9;
  GLint stencilBits = 0;
  GLint samples = 0;
  glGetIntegerv(GL_STENCIL_BITS, &stencilBits);
  glGetIntegerv(kSamples, &samples);
  const auto* renderer = reinterpret_cast<const char*>(glGetString(GL_RENDERER));
  const std::string_view name = renderer == nullptr ? "" : renderer;
  const bool byProcessor = std::ranges::any_of(kProcessorRenderers, [name](std::string_view known) {
    return name.find(known) != std::string_view::npos;
  });
  return {bufferCalls(), stencilBits >= 8, samples > 1, byProcessor};
}

} // namespace trassix
