// What others include from the wrong side.
#include "attributes/attribute_section.h"
#include "text/sound.h"
