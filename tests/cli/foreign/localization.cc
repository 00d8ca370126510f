// A product's own localization library, which has the one function that is promised and shouts.
#include <KZMLocalization/KZMLocalization.h>

std::string KZMLocalizedStringFromTableInBundle(std::string_view key, std::string_view /*table*/,
                                                const kzm::ResourceBundle* /*bundle*/, const char* /*comment*/) {
  return std::string(key.substr(key.find("%@"))) + "!";
}
