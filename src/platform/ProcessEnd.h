#pragma once

// The roads by which the process can end, watched so that none of them leaves the rig driving.
//
//   road                                     what is done
//   told to end (SIGTERM, SIGHUP, SIGINT,    `terminate`, from the event loop; where a console
//   SIGQUIT; Ctrl+C in a console on          closes, `atEnd` too once the system's patience ends
//   Windows, or its closing)
//   the user's session is over (Windows)     `atEnd`, without pumping
//   exit (the display's connection breaks),  `atEnd`, in the thread that ends the process
//   EndProcess, a return from main
//   a signal or an exception that kills      `inCrash`, on a stack of its own, for a second at
//   (a crash, abort, an uncaught exception)  most; then the process dies of it
//   SIGKILL, a forced end, _exit, power cut  nothing can be
//
// A broken pipe and a file beyond the user's limit are failed writes and end nothing.

#include <functional>

namespace glidetrak {

struct EndDeeds {
  /// Ends the process in order. Called once, and never from inside a handler.
  std::function<void()> terminate;

  /// The last deed of an end that was not in order; may be called more than once. Handlers of the
  /// event loop no longer run.
  void (*atEnd)();

  /// The same behind a crash, on Windows in a thread of its own: it must take no memory and no lock
  /// that the crash may have left in pieces, as far as it can.
  void (*inCrash)();
};

/// Watches all roads from now on. To be called once, with the application object there.
void WatchProcessEnd(EndDeeds deeds);

/// Puts atEnd ahead of whatever was registered since for the end of the process: a library that was
/// loaded in the meantime is then still alive when atEnd calls it.
void MoveLastDeedAhead();

/// Does atEnd, for an end that runs nothing else.
void DoLastDeed();

}  // namespace glidetrak
