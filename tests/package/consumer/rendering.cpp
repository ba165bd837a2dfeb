// The public header of the rendering library stands on its own.
#include <chartrender/chartrender.h>

int main() { return 0; }
