#pragma once

// OpenGL 3.3's core functions, which the vendor-neutral library exports by name: nothing has to look them up.
#define GL_GLEXT_PROTOTYPES
#include <GL/glcorearb.h>
