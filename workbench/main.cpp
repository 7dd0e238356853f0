#include <unistd.h>

#include <csignal>
#include <iostream>

#include "workbench/cli/program.h"
#include "workbench/commands/errors.h"
#include "workbench/file/atomic_file.h"

namespace {

extern "C" void OnInterrupt(int) {
  Tarvex::Workbench::RemoveTemporaryFileOnSignal();
  _exit(static_cast<int>(Tarvex::Workbench::ExitCode::Interrupted));
}

}  // namespace

int main(int argc, char** argv) {
  std::signal(SIGINT, OnInterrupt);
  std::signal(SIGTERM, OnInterrupt);
  std::signal(SIGPIPE, SIG_IGN);  // a reader that went away is no fault worth a message
  std::ios::sync_with_stdio(false);
  return Tarvex::Workbench::RunProgram({argv + 1, argv + argc}, std::cout, std::cerr,
                                       isatty(STDERR_FILENO) == 1);
}
