// May include neither the attribute section nor anything of write.
#include "attributes/attribute_section.h"
#include "frame/lower.h"
#include "write/writer.h"
