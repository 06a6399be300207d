// May tell platforms apart and decode UTF-8.
#include <utf8.h>
#if defined(_WIN32)
#endif
