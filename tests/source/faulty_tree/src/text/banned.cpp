// Each line below is a fault of its own kind.
#include <iostream>
#define TWICE(x) ((x) + (x))
#ifdef _WIN32
#endif

void Banned(int* number) {
    std::cout << "text" << std::endl;
    std::printf("text");
    int* other = new int(5);
    other = ::new int(5);
    delete number;
    std::abort();
    std::exit(1);
}
