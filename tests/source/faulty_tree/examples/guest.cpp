// A guest sees the public header alone.
#include <vexil64.h>

#include <string>

#include "../src/frame/lower.h"
#include "frame/lower.h"
#include "own_part.h"
