// Guards around code that raises the host's exceptions, and a maximum and minimum that ignore NaN and infinities.
//
// Everything here is free of shared state and may be called from any thread.
#ifndef KZMUTILITIES_GUARDS_H
#define KZMUTILITIES_GUARDS_H

#include <exception>
#include <functional>
#include <string>

#include <KZMUtilities/export.h>

namespace kzm {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

/// The host's exception: the one kind that the guards below catch. Hosts throw it, or classes derived from it.
class KZM_EXPORT Exception : public std::exception {
 public:
  /// `name` says which kind of exception it is, for programs; `reason` what happened, for people. Either may be empty.
  Exception(std::string name, std::string reason);
  ~Exception() override;

  Exception(const Exception&);
  Exception& operator=(const Exception&);

  [[nodiscard]] const std::string& name() const noexcept { return name_; }
  [[nodiscard]] const std::string& reason() const noexcept { return reason_; }
  /// The reason.
  [[nodiscard]] const char* what() const noexcept override;

 private:
  std::string name_;
  std::string reason_;
};

}  // namespace kzm

/// Runs the block and swallows a kzm::Exception, or a class derived from it, that it raises; nothing is logged. Any
/// other exception passes on to the caller unchanged. An empty block does nothing.
///
/// Example:
///   std::string done = "before";
///   KZMTryCatchBlock([&] {
///     done = "begun";
///     throw kzm::Exception("Sensor", "no answer");
///   });
///   done  // "begun"
KZM_EXPORT void KZMTryCatchBlock(const std::function<void()>& block);

/// Runs the block and calls the completion with how it ended: null for success, else the kzm::Exception itself, with
/// its dynamic type, valid during the call only.
///
/// The completion's call with null is guarded like the block: if it raises a kzm::Exception, the completion is called a
/// second time, with that exception. What the completion raises when it is given an exception passes on to the caller,
/// and so does any other kind of exception from the block. An empty block succeeds; an empty completion is not called.
///
/// Example:
///   std::string outcome;
///   KZMTryCatchBlockWithError([] { throw kzm::Exception("Sensor", "no answer"); },
///                             [&](const kzm::Exception* e) { outcome = e != nullptr ? e->reason() : "fine"; });
///   outcome  // "no answer"
KZM_EXPORT void KZMTryCatchBlockWithError(const std::function<void()>& block,
                                          const std::function<void(const kzm::Exception*)>& completion);

// ---- Maximum and minimum --------------------------------------------------------------------------------------------

/// The greater of the finite arguments; 0.0 when neither is finite (NaN, an infinity). On a tie, a: the maximum of -0.0
/// and 0.0 is -0.0.
///
/// Example:
///   KZMMAXDouble(std::nan(""), -2.0)  // -2.0
[[nodiscard]] KZM_EXPORT double KZMMAXDouble(double a, double b);

/// The lesser of the finite arguments; 0.0 when neither is finite (NaN, an infinity). On a tie, b: the minimum of 0.0
/// and -0.0 is -0.0.
///
/// Example:
///   KZMMINDouble(3.0, -2.0)  // -2.0
[[nodiscard]] KZM_EXPORT double KZMMINDouble(double a, double b);

// ---- Names ----------------------------------------------------------------------------------------------------------

/// Published under its name, with no operations and no state. Its constructor is defined inside the library, for a
/// class leaves its name among the exported symbols only through something of its own that is compiled there.
class KZM_EXPORT KZMMath {
 public:
  KZMMath() noexcept;
};

/// Published under its name, with no operations and no state, like KZMMath.
class KZM_EXPORT KZMUtilitiesBatteryIcons {
 public:
  KZMUtilitiesBatteryIcons() noexcept;
};

#endif
