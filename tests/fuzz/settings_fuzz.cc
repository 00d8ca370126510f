// Any bytes as a settings file: read or left alone; a setting that is then stored is found again, by this process and
// by the next, and loses no other.
#include <string>

#include "settings/file.h"
#include "settings/json.h"
#include "settings/store.h"
#include "tests/fuzz/input.h"
#include "tests/support/scratch_directory.h"

namespace kzm::fuzz {
namespace {

Value valueOf(Input& input, int levels = 3) {
  switch (input.below(levels > 0 ? 7 : 5)) {
    case 0:
      return input.take<double>();
    case 1:
      return input.take<std::int64_t>();
    case 2:
      return input.take<std::uint8_t>() % 2 == 0;
    case 3:
      return std::string(input.textTo('\0'));
    case 4:
      return nullptr;
    case 5:
      return Array{valueOf(input, levels - 1), valueOf(input, levels - 1)};
    default: {
      Dictionary members;
      members.set(std::string(input.textTo('\0')), valueOf(input, levels - 1));
      return members;
    }
  }
}

void checkText(std::string_view text) {
  const settings::Parsed parsed = settings::parse(text);
  if (!parsed.fault.empty()) return;
  const settings::Parsed again = settings::parse(settings::textOf(parsed.members));
  demand(again.fault.empty() && settings::settingsIn(again.members) == settings::settingsIn(parsed.members),
         "written and read again it says the same");
}

void checkFile(const std::string& path, std::string_view text, const std::string& key, const Value& value) {
  if (!settings::replace(path, text).identity) return;
  const bool isSound = settings::parse(text).fault.empty();
  const bool isStored = settings::Store(path).set(value, key);
  const settings::Content content = settings::read(path);
  if (!isStored) {
    demand(content.text == text, "what is refused changes nothing");
    return;
  }
  demand(isSound || text.empty(), "a broken file is left alone");
  const Value found = settings::Store(path).find(key);
  demand(value.isNull() ? found.isNull() : found == value, "what was stored is found");
}

}  // namespace
}  // namespace kzm::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace kzm::fuzz;
  static const auto& scratch = *new kzm::tests::ScratchDirectory;
  Input input(bytes, size);
  const kzm::Value value = valueOf(input);
  const std::string key(input.textTo('\0'));
  checkText(input.rest());
  checkFile(scratch.path("settings.json"), input.rest(), key, value);
  return 0;
}
