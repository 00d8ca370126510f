// Puts a number into styled text, reads one out of a line of output, and guards a block that fails.
// Prints: 42 rpm in 2 runs; 42; caught RangeException; finite maximum 5
#include <iostream>
#include <limits>

#include <KZMUtilities/KZMUtilities.h>

int main() {
  kzm::AttributedString text("%@ rpm", "gray");
  kzm::replaceStringWithStringAttributes(text, "%@", "42", "bold");
  std::cout << text.text() << " in " << text.runs().size() << " runs; ";

  std::cout << kzm::matchForExpression("fan1: 42 RPM", "(\\d+) rpm").value_or("nothing") << "; ";

  KZMTryCatchBlockWithError([] { throw kzm::Exception("RangeException", "out of range"); },
                            [](const kzm::Exception* exception) {
                              if (exception != nullptr) std::cout << "caught " << exception->name() << "; ";
                            });
  std::cout << "finite maximum " << KZMMAXDouble(std::numeric_limits<double>::quiet_NaN(), 5.0) << '\n';
}
