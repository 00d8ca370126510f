// Prints the text for the key in its first argument, as the environment has it: once from eight threads that all come
// first, one line if they agree, and once from the destructor of a static object.
#include <barrier>
#include <iostream>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/resources.h>

namespace {

std::string textFor(const std::string& key) {
  return KZMLocalizedStringFromTableInBundle(key, "KZMUtilities", kzm::bundleWithIdentifier(kzm::kBundleIdentifier),
                                             nullptr);
}

/// Asks once more when everything made later is gone already.
struct AtTheEnd {
  std::string key;
  ~AtTheEnd() { std::cout << "at the end: " << textFor(key) << '\n'; }
};

}  // namespace

int main(int argc, char** argv) {
  const std::string key = argc > 1 ? argv[1] : "";
  static AtTheEnd atTheEnd{key};
  constexpr int kThreads = 8;
  std::vector<std::string> texts(kThreads);
  std::barrier start(kThreads);
  {
    std::vector<std::jthread> threads;
    for (std::string& text : texts) {
      threads.emplace_back([&] {
        start.arrive_and_wait();
        text = textFor(key);
      });
    }
  }
  for (const std::string& text : std::set<std::string>(texts.begin(), texts.end())) std::cout << text << '\n';
}
