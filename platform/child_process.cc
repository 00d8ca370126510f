// The exported face of a child: every operation goes to what the handles share.
#include <utility>

#include <KZMUtilities/process.h>

#include "platform/child.h"

namespace kzm {

ChildProcess::ChildProcess(ChildConfiguration configuration)
    : child_(std::make_shared<platform::Child>(std::move(configuration),
                                               platform::Host{port::mainQueue(), port::systemLog()})) {}

ChildConfiguration ChildProcess::configuration() const { return child_->configuration(); }

void ChildProcess::setStandardInput(StandardConnection connection) {
  child_->setConnection(&ChildConfiguration::standardInput, std::move(connection));
}

void ChildProcess::setStandardOutput(StandardConnection connection) {
  child_->setConnection(&ChildConfiguration::standardOutput, std::move(connection));
}

void ChildProcess::setStandardError(StandardConnection connection) {
  child_->setConnection(&ChildConfiguration::standardError, std::move(connection));
}

void ChildProcess::setTerminationHandler(TerminationHandler handler) {
  child_->setTerminationHandler(std::move(handler));
}

bool ChildProcess::launch() { return child_->launch(); }
void ChildProcess::launchWithTimeout(double seconds) { child_->launchWithTimeout(seconds); }
void ChildProcess::forceCancel() { child_->forceCancel(); }
void ChildProcess::cleanup() { child_->cleanup(); }

bool ChildProcess::isRunning() const { return child_->isRunning(); }
int ChildProcess::processIdentifier() const { return child_->processIdentifier(); }
std::optional<ExitStatus> ChildProcess::exitStatus() const { return child_->exitStatus(); }

}  // namespace kzm
