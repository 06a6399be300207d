// An account that looks up and prints.
#include "view/view.h"
#include <iostream>
#include "frame/lower.h"
#include "source/source.h"
