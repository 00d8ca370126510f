// Signals as a descriptor, so that waiting for them and for other things is one.
#ifndef KZM_CLI_TERMINAL_SIGNALS_H
#define KZM_CLI_TERMINAL_SIGNALS_H

#include "port/descriptor.h"

namespace kzm::cli {

/// Takes the signals that end, stop or resize the program from the system, until the end of the program.
class Signals {
 public:
  Signals();

  /// Readable when a signal has come.
  [[nodiscard]] int descriptor() const { return descriptor_.number(); }

  /// The number of the signal; 0 when none has come.
  [[nodiscard]] int take() const;

 private:
  port::Descriptor descriptor_;
};

}  // namespace kzm::cli

#endif
