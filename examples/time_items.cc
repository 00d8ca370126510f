// Lists what a clock display can be composed of.
// Prints one line for each group, such as: hour: (hour-12) h hh | (hour-24) HH H
#include <iostream>

#include <KZMUtilities/KZMUtilities.h>

int main() {
  for (const kzm::Value& group : KZMUtilitiesTimeItems()) {
    std::cout << *group.dictionary()->find("type")->string() << ':';
    bool isOpen = false;
    for (const kzm::Value& entry : *group.dictionary()->find("items")->array()) {
      const kzm::Value* token = entry.dictionary()->find("token");
      if (token != nullptr) {
        std::cout << ' ' << *token->string();
        continue;
      }
      std::cout << (isOpen ? " |" : "") << " (" << *entry.dictionary()->find("type")->string() << ')';
      isOpen = true;
    }
    std::cout << '\n';
  }
}
