#include <iostream>

#include "befehle.h"

int main(int argc, char** argv) {
    return kalimbo::cli::fuehreAus({argv + 1, argv + argc}, std::cout, std::cerr);
}
