// A further public header takes the first one and the C++ standard library.
#include <stdio.h>

#include <string>

#include "text/sound.h"
#include "vexil64.h"
