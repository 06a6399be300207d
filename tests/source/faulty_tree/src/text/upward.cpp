// Each include is a fault of its own kind.
#include <stdio.h>
#include <utf8.h>

#include "../text/sound.h"
#include "frame/lower.h"
#include "sound.h"
#include "text/absent.h"
