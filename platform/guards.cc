// The host's exception and the two guards that catch it.
#include <utility>

#include <KZMUtilities/guards.h>

namespace kzm {

Exception::Exception(std::string name, std::string reason) : name_(std::move(name)), reason_(std::move(reason)) {}
Exception::~Exception() = default;
Exception::Exception(const Exception&) = default;
Exception& Exception::operator=(const Exception&) = default;

const char* Exception::what() const noexcept { return reason_.c_str(); }

}  // namespace kzm

void KZMTryCatchBlock(const std::function<void()>& block) {
  try {
    if (block) block();
  } catch (const kzm::Exception&) {  // NOLINT(bugprone-empty-catch): swallowing it is this guard's purpose
  }
}

void KZMTryCatchBlockWithError(const std::function<void()>& block,
                               const std::function<void(const kzm::Exception*)>& completion) {
  try {
    if (block) block();
    // Deliberate: the success call is inside the guarded region, so an exception of the host that it raises leads to a
    // second call of the completion
    // (TryCatchBlockWithError.AnExceptionFromTheSuccessCallCallsTheCompletionASecondTime).
    if (completion) completion(nullptr);
  } catch (const kzm::Exception& exception) {
    if (completion) completion(&exception);
  }
}
