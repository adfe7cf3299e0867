#ifndef _WIN32
#define GL_GLEXT_PROTOTYPES
#endif
#include "view3d/gl_calls.h"

#include <cstdio>

namespace trassix {

namespace {

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
  GLint stencilBits = 0;
  glGetIntegerv(GL_STENCIL_BITS, &stencilBits);
  return {bufferCalls(), stencilBits >= 8};
}

} // namespace trassix
