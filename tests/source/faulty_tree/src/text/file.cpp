// May tell platforms apart, call the system and decode UTF-8; includes one header too many.
#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <utf8.h>
#if defined(_WIN32)
#endif
