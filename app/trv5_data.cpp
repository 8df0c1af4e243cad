#include <csignal>
#include <iostream>

#include "provision/data_commands.h"

int main(int argc, char** argv) {
  // A file beyond the allowed size is an error like a full disk, not the end of the program.
  std::signal(SIGXFSZ, SIG_IGN);
  return trv5::runDataCommand({argv + 1, argv + argc}, std::cout, std::cerr);
}
