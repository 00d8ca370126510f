#include "cli/terminal/keys.h"

#include <algorithm>
#include <cstddef>

namespace kzm::cli {
namespace {

struct KeyRow {
  std::string_view bytes;
  Key key;
};

// Terminals send the arrows in two ways. Of a mouse's report the rest says where it is.
// clang-format off
constexpr KeyRow kKeys[] = {
    {"q", Key::quit},          {"Q", Key::quit},           {"\x03", Key::quit},
    {"\x1b[A", Key::up},       {"\x1bOA", Key::up},        {"k", Key::up},
    {"\x1b[B", Key::down},     {"\x1bOB", Key::down},      {"j", Key::down},
    {"\x1b[5~", Key::pageUp},  {"\x1b[D", Key::pageUp},    {"\x1bOD", Key::pageUp},
    {"\x1b[6~", Key::pageDown},{"\x1b[C", Key::pageDown},  {"\x1bOC", Key::pageDown},
    {"\x1b[H", Key::first},    {"\x1bOH", Key::first},     {"\x1b[1~", Key::first},
    {"\x1b[F", Key::last},     {"\x1bOF", Key::last},      {"\x1b[4~", Key::last},
    {"\x1b[<64", Key::wheelUp},{"\x1b[<65", Key::wheelDown},
    {"p", Key::pause},         {" ", Key::pause},
    {"+", Key::slower},        {"=", Key::slower},         {"-", Key::faster},
    {"b", Key::bits},          {"s", Key::shown},
    {"?", Key::help},          {"h", Key::help},           {"\x1b", Key::escape},
    {"\x0c", Key::redraw},
};
// clang-format on

bool isFinal(char c) { return c >= '@' && c <= '~'; }

// The size of the sequence or character at the front; 0 when it has not ended yet.
std::size_t sizeOfFirst(std::string_view text) {
  if (text[0] != '\x1b' || text.size() == 1) return 1;
  if (text[1] == 'O') return text.size() > 2 ? 3 : 0;
  if (text[1] != '[') return 1;
  const auto end = std::find_if(text.begin() + 2, text.end(), isFinal);
  return end == text.end() ? 0 : static_cast<std::size_t>(end - text.begin()) + 1;
}

}  // namespace

std::vector<Key> Keyboard::typed(std::string_view bytes) {
  constexpr std::size_t kLongest = 32;  // no sequence of a terminal is longer
  pending_ += bytes;
  std::vector<Key> keys;
  std::string_view rest = pending_;
  while (!rest.empty()) {
    const std::size_t size = sizeOfFirst(rest);
    if (size == 0 && rest.size() < kLongest) break;
    const std::string_view sequence = rest.substr(0, std::max<std::size_t>(size, 1));
    const std::string_view name = sequence.substr(0, sequence.find(';'));
    const auto* row = std::ranges::find(kKeys, name, &KeyRow::bytes);
    if (row != std::end(kKeys)) keys.push_back(row->key);
    rest.remove_prefix(sequence.size());
  }
  pending_ = std::string(rest);
  return keys;
}

}  // namespace kzm::cli
