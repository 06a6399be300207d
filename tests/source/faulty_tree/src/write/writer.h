// May include the attribute section, and nothing of read.
#include "attributes/attribute_section.h"
#include "read/reader.h"
