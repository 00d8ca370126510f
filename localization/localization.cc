#include <KZMLocalization/KZMLocalization.h>

std::string KZMLocalizedStringFromTableInBundle(std::string_view key, std::string_view, const kzm::ResourceBundle*,
                                                const char*) {
  return std::string(key.substr(key.find('%')));
}
