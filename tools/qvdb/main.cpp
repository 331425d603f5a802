#include <iostream>

#include "suite/qvdb.h"

int main(int argc, char** argv) {
  return qvzj::RunQvdb({argv + 1, argv + argc}, {std::cin, std::cout, std::cerr});
}
