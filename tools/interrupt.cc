#include "tools/interrupt.h"

#include <csignal>

#include "host/error.h"

namespace brisal::tools {

namespace {

volatile std::sig_atomic_t interrupted = 0;

void Note(int) { interrupted = 1; }

}  // namespace

void CatchInterrupts() {
  std::signal(SIGINT, Note);
  std::signal(SIGTERM, Note);
}

void StopIfInterrupted() {
  if (interrupted) throw host::Error("interrupted, nothing written");
}

}  // namespace brisal::tools
