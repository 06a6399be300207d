// An account that looks up and prints.
#include <iostream>

#include "frame/lower.h"
#include "source/source.h"
#include "view/view.h"
