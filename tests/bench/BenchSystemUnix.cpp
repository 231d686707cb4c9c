#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>

#include "BenchSystem.h"
#include "bench/FileDescriptor.h"

namespace glidetrak::bench {

std::string MakePlace() {
  std::string sPattern = testing::TempDir() + "glidetrak-bench-XXXXXX";
  return std::string(mkdtemp(sPattern.data())) + "/rig.socket";
}

void RemovePlace(const std::string& sName) {
  std::filesystem::remove_all(std::filesystem::path(sName).parent_path());
}

void SetVariable(const char* sName, const std::string& sValue) {
  setenv(sName, sValue.c_str(), 1);
}

struct Program::System {
  pid_t process = -1;
  FileDescriptor output;
  bool bEnded = false;
  int iStatus = 0;
};

Program::Program(const std::string& sPath, const std::vector<std::string>& aArguments)
    : m_system(std::make_unique<System>()) {
  int aPipe[2];
  EXPECT_EQ(pipe2(aPipe, O_CLOEXEC), 0);
  m_system->output = FileDescriptor(aPipe[0]);
  const FileDescriptor input(aPipe[1]);
  std::vector<char*> aWords{const_cast<char*>(sPath.c_str())};
  for (const std::string& sWord : aArguments) aWords.push_back(const_cast<char*>(sWord.c_str()));
  aWords.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  for (const int iStream : {STDOUT_FILENO, STDERR_FILENO}) {
    posix_spawn_file_actions_adddup2(&actions, input.Number(), iStream);
  }
  EXPECT_EQ(
      posix_spawn(&m_system->process, sPath.c_str(), &actions, nullptr, aWords.data(), environ), 0);
  posix_spawn_file_actions_destroy(&actions);
}

Program::Program(Program&& other) noexcept = default;

Program::~Program() {
  if (!m_system || HasEnded()) return;
  Kill();
  waitpid(m_system->process, nullptr, 0);
}

void Program::AskToEnd() const {
  kill(m_system->process, SIGTERM);
}

void Program::Kill() const {
  kill(m_system->process, SIGKILL);
}

void Program::Stop() const {
  kill(m_system->process, SIGSTOP);
}

void Program::GoOn() const {
  kill(m_system->process, SIGCONT);
}

int Program::Id() const {
  return m_system->process;
}

bool Program::HasEnded() const {
  if (!m_system->bEnded) {
    m_system->bEnded = waitpid(m_system->process, &m_system->iStatus, WNOHANG) != 0;
  }
  return m_system->bEnded;
}

ProgramResult Program::Finish() {
  ProgramResult result;
  if (!HasEnded()) waitpid(m_system->process, &m_system->iStatus, 0);
  m_system->bEnded = true;
  if (WIFEXITED(m_system->iStatus)) result.iExitCode = WEXITSTATUS(m_system->iStatus);
  char aPiece[256];
  ssize_t iCount = 0;
  while ((iCount = read(m_system->output.Number(), aPiece, sizeof aPiece)) > 0) {
    result.sText.append(aPiece, static_cast<size_t>(iCount));
  }
  return result;
}

LoadedLibrary::LoadedLibrary(const char* sPath) : m_pLibrary(dlopen(sPath, RTLD_NOW | RTLD_LOCAL)) {
  EXPECT_NE(m_pLibrary, nullptr) << dlerror();
}

LoadedLibrary::~LoadedLibrary() {
  dlclose(m_pLibrary);
}

void* LoadedLibrary::Find(const char* sOperation) const {
  return dlsym(m_pLibrary, sOperation);
}

}  // namespace glidetrak::bench
