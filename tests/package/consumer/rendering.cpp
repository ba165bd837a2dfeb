#include <chartrender/chartrender.h>

int main() { return 0; }
