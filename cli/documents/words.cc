#include "cli/documents/words.h"

#include <algorithm>
#include <set>

#include "cli/process_options.h"
#include "cli/verbs.h"

namespace kzm::cli {
namespace {

void add(Place& place, const std::vector<FlagText>& flags) {
  for (const FlagText& flag : flags) place.words.push_back({std::string(flag.name), flag.help});
}

void addCommonFlags(Place& place) {
  add(place, processOptionTexts());
  place.words.push_back({"--help", "what there is"});
}

Place& placeAt(std::vector<Place>& all, const std::string& path) {
  const auto found = std::ranges::find(all, path, &Place::path);
  return found != all.end() ? *found : all.emplace_back(Place{path, {}});
}

// Puts each word of the choice's name where it is typed: "sensor" after the verb, "fan" after "sensor".
std::string enter(std::vector<Place>& all, const std::string& verb, const Choice& choice) {
  std::string path = verb;
  for (std::string_view rest = choice.name; !rest.empty();) {
    const std::string_view word = rest.substr(0, rest.find(' '));
    rest.remove_prefix(std::min(rest.size(), word.size() + 1));
    std::vector<Word>& words = placeAt(all, path).words;
    const bool isThere = std::ranges::find(words, word, &Word::text) != words.end();
    if (!isThere) words.push_back({std::string(word), rest.empty() ? choice.help : std::string_view()});
    path.append(" ").append(word);
  }
  return path;
}

void enter(std::vector<Place>& all, const Verb& verb) {
  const std::string path(verb.name);
  const Description description = verb.describe();
  placeAt(all, path);
  for (const Choice& choice : description.choices) {
    const std::string after = enter(all, path, choice);
    if (choice.flags.empty() && choice.operands.empty()) continue;
    Place& place = placeAt(all, after);
    for (const std::string_view operand : choice.operands) place.words.push_back({std::string(operand), ""});
    add(place, choice.flags);
    addCommonFlags(place);
  }
  Place& own = placeAt(all, path);
  for (const std::string_view name : description.names) own.words.push_back({std::string(name), ""});
  add(own, description.flags);
  addCommonFlags(own);
}

}  // namespace

std::vector<Place> places() {
  std::vector<Place> all;
  Place first;
  for (const Verb& verb : verbs()) first.words.push_back({std::string(verb.name), verb.does});
  addCommonFlags(first);
  first.words.push_back({"--version", "the program's version"});
  for (const Verb& verb : verbs()) enter(all, verb);
  all.push_back(std::move(first));
  std::ranges::stable_sort(all, std::ranges::greater(), [](const Place& place) { return place.path.size(); });
  return all;
}

std::vector<std::string_view> flagsWithValue() {
  std::set<std::string_view> names;
  const auto take = [&](const std::vector<FlagText>& flags) {
    for (const FlagText& flag : flags) {
      if (!flag.value.empty()) names.insert(flag.name);
    }
  };
  take(processOptionTexts());
  for (const Verb& verb : verbs()) {
    const Description description = verb.describe();
    take(description.flags);
    for (const Choice& choice : description.choices) take(choice.flags);
  }
  return {names.begin(), names.end()};
}

}  // namespace kzm::cli
