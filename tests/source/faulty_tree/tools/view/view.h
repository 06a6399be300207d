// A view that opens files.
#include "account/account.h"
#include "file/file.h"
#include <fstream>
#include <ostream>
