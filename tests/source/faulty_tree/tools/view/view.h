// A view that opens files.
#include <fstream>
#include <ostream>

#include "account/account.h"
#include "file/file.h"
