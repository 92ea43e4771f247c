#include "app/MainModule.h"

int main(int argc, char* argv[]) { return brimo::Main(argc, argv); }
