// The protocol of `call --batch`: one JSON object in a line, one in the answer.
#ifndef KZM_CLI_CALL_BATCH_H
#define KZM_CLI_CALL_BATCH_H

#include <string>
#include <string_view>

namespace kzm::cli {

/// The answer to the line, without the end of the line. What cannot be answered is said in it: nothing is thrown but
/// std::bad_alloc.
[[nodiscard]] std::string answerLine(std::string_view line);

}  // namespace kzm::cli

#endif
