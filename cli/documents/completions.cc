// Each script finds the words before the cursor that are neither flags nor values of flags, and offers what may follow
// the longest path that these begin with.
#include "cli/documents/documents.h"
#include "cli/documents/words.h"

namespace kzm::cli {
namespace {

// A text between single quotation marks, in which a mark is written as `escape`.
std::string singleQuoted(std::string_view text, std::string_view escape) {
  std::string quoted = "'";
  for (const char c : text) quoted.append(c == '\'' ? escape : std::string_view(&c, 1));
  return quoted + "'";
}

std::string joined(const std::vector<std::string_view>& words, std::string_view separator) {
  std::string text;
  for (const std::string_view word : words) text.append(text.empty() ? "" : separator).append(word);
  return text;
}

// The shell pattern of a path and of whatever comes after it.
std::string pattern(const std::string& path) { return path.empty() ? "''" : "'" + path + "' | '" + path + " '*"; }

// zsh takes what follows a colon for the description.
std::string zshItem(const Word& word) {
  std::string item;
  for (const char c : word.text) item.append(c == ':' ? "\\:" : std::string(1, c));
  if (!word.help.empty()) item.append(":").append(word.help);
  return singleQuoted(item, "'\\''");
}

}  // namespace

std::string bashCompletion() {
  std::string text = R"(# Completion of kzmutil for bash.
_kzmutil() {
    local word=${COMP_WORDS[COMP_CWORD]} path= words= isValue= i
    for ((i = 1; i < COMP_CWORD; i++)); do
        if [[ $isValue ]]; then
            isValue=
            continue
        fi
        case ${COMP_WORDS[i]} in
            )" + joined(flagsWithValue(), " | ") +
                     R"() isValue=1 ;;
            -*) ;;
            *) path+="${path:+ }${COMP_WORDS[i]}" ;;
        esac
    done
    COMPREPLY=()
    [[ $isValue ]] && return
    case $path in
)";
  for (const Place& place : places()) {
    text += "        " + pattern(place.path) + ") words='";
    for (const Word& word : place.words) text.append(&word == place.words.data() ? "" : " ").append(word.text);
    text += "' ;;\n";
  }
  return text + R"(    esac
    COMPREPLY=($(compgen -W "$words" -- "$word"))
}
complete -F _kzmutil kzmutil
)";
}

std::string zshCompletion() {
  std::string text = R"(#compdef kzmutil
# Completion of kzmutil for zsh.
local path= isValue= i
local -a offered
for ((i = 2; i < CURRENT; i++)); do
    if [[ -n $isValue ]]; then
        isValue=
        continue
    fi
    case $words[i] in
        )" + joined(flagsWithValue(), " | ") +
                     R"() isValue=1 ;;
        -*) ;;
        *) path+="${path:+ }$words[i]" ;;
    esac
done
[[ -n $isValue ]] && return
case $path in
)";
  for (const Place& place : places()) {
    text += "    " + pattern(place.path) + ") offered=(";
    for (const Word& word : place.words) text.append("\n        ").append(zshItem(word));
    text += ") ;;\n";
  }
  return text + "esac\n_describe 'kzmutil' offered\n";
}

std::string fishCompletion() {
  std::string text = R"(# Completion of kzmutil for fish.
function __kzmutil_path
    set -l path
    set -l isValue
    for word in (commandline -opc)[2..-1]
        if test -n "$isValue"
            set isValue
            continue
        end
        switch $word
            case )" + joined(flagsWithValue(), " ") +
                     R"(
                set isValue 1
            case '-*'
            case '*'
                set -a path $word
        end
    end
    test -n "$isValue"; and echo "a value"; and return
    echo "$path"
end
function __kzmutil_place
    set -l path (__kzmutil_path)
    switch "$path"
)";
  for (const Place& place : places()) {
    const std::string name = singleQuoted(place.path, "\\'");
    const std::string longer = place.path.empty() ? "" : " " + singleQuoted(place.path + " *", "\\'");
    text.append("        case ").append(name).append(longer).append("\n            echo ").append(name).append("\n");
  }
  text += "    end\nend\ncomplete -c kzmutil -f\n";
  for (const Place& place : places()) {
    for (const Word& word : place.words) {
      text += "complete -c kzmutil -n 'test (__kzmutil_place) = \"" + place.path + "\"' -a " +
              singleQuoted(word.text, "\\'");
      if (!word.help.empty()) text.append(" -d ").append(singleQuoted(word.help, "\\'"));
      text += "\n";
    }
  }
  return text;
}

}  // namespace kzm::cli
