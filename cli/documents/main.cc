// Writes one of the program's documents to standard output: kzm_documents manual|bash|zsh|fish
#include <iostream>
#include <string>
#include <string_view>

#include "cli/documents/documents.h"
#include "cli/output.h"

namespace {

struct Document {
  std::string_view name;
  std::string (*text)();
};
constexpr Document kDocuments[] = {
    {"manual", [] { return kzm::cli::manualPage(KZM_VERSION); }},
    {"bash", kzm::cli::bashCompletion},
    {"zsh", kzm::cli::zshCompletion},
    {"fish", kzm::cli::fishCompletion},
};

}  // namespace

int main(int count, char** arguments) {
  for (const Document& document : kDocuments) {
    if (count != 2 || document.name != arguments[1]) continue;
    return kzm::cli::print(document.text());
  }
  std::cerr << "usage: kzm_documents manual|bash|zsh|fish\n";
  return 2;
}
