#include <sys/wait.h>
#include <unistd.h>

#include "player/SequenceProcess.h"

namespace glidetrak {

namespace {

constexpr unsigned iLongestSequence = 20;  ///< real seconds; it takes milliseconds

}  // namespace

/// A copy of this process.
std::string InProcessOfItsOwn(quint64 lSeed, bool (*play)(quint64)) {
  const pid_t child = fork();
  if (child == 0) {
    alarm(iLongestSequence);
    _exit(play(lSeed) ? 0 : 1);
  }
  int iStatus = 0;
  if (child < 0 || waitpid(child, &iStatus, 0) != child) return "no process for it";
  if (WIFSIGNALED(iStatus)) return "ended by signal " + std::to_string(WTERMSIG(iStatus));
  return WEXITSTATUS(iStatus) == 0 ? "" : "something did not hold, see above";
}

}  // namespace glidetrak
