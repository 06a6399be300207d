// May include every layer: no fault in here.
#include "attributes/attribute_section.h"
#include "frame/lower.h"
#include "text/sound.h"
#include "vexil64.h"
#include "write/writer.h"
