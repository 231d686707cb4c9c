#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "bench/Neighbour.h"

extern char** environ;

namespace glidetrak::bench {

struct Neighbour::System {
  pid_t process = 0;
};

Neighbour::Neighbour(const std::string& sName, const std::vector<std::string>& aArguments)
    : m_system(std::make_unique<System>()) {
  const std::filesystem::path folder =
      std::filesystem::read_symlink("/proc/self/exe").parent_path();
  const std::string sPath = folder / sName;
  std::vector<char*> aWords{const_cast<char*>(sPath.c_str())};
  for (const std::string& sWord : aArguments) aWords.push_back(const_cast<char*>(sWord.c_str()));
  aWords.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addchdir_np(&actions, folder.c_str());
  const int iError =
      posix_spawn(&m_system->process, sPath.c_str(), &actions, nullptr, aWords.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (iError != 0) throw std::system_error(iError, std::generic_category(), sPath);
}

Neighbour::~Neighbour() = default;

int Neighbour::Wait() {
  int iStatus = 0;
  if (waitpid(m_system->process, &iStatus, 0) != m_system->process || !WIFEXITED(iStatus)) return 1;
  return WEXITSTATUS(iStatus);
}

}  // namespace glidetrak::bench
