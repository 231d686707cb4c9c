#pragma once

// A thread that leaves the process's signals to the threads that were there before it: the bench
// library lives inside a program that knows nothing of it.

#include <csignal>
#include <thread>

namespace glidetrak::bench {

template <typename Work>
std::thread StartWorker(Work work) {
  sigset_t all{};
  sigset_t before{};
  sigfillset(&all);
  pthread_sigmask(SIG_BLOCK, &all, &before);
  std::thread thread(work);
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
  return thread;
}

}  // namespace glidetrak::bench
