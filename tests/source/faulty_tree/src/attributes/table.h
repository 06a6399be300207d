// The rest of its folder knows no messages.
#include "attributes/attribute_section.h"
#include "frame/lower.h"
#include "text/sound.h"
