#pragma once

// The one exception type of the station. Whatever goes wrong at run time (an overflow, a bad
// bound, a missing file, a failed platform call) is a RuntimeError; the routine whose failure rule
// covers it catches it, and no other type is thrown on purpose. It never leaves an event handler.

#include <exception>

namespace glidetrak {

enum class Fault {
  Overflow,        ///< a value does not fit the width that it is stored in
  DivisionByZero,  ///< a division by 0
  BadBound,        ///< an index outside a table, a character of an empty text
  BadText,         ///< a text that should hold a number and does not
  FileNotFound,    ///< the path names nothing
  FileAccess,      ///< the path is there and cannot be read, written or deleted
  WriteBroken,     ///< a write broke off after the file was opened
  FileSlotInUse,   ///< the one file slot is still open
  PlatformCall,    ///< a call of the machine failed or is not offered here
  Cancelled,       ///< the user cancelled a dialog that reports it as an error
};

class RuntimeError : public std::exception {
 public:
  explicit RuntimeError(Fault fault) : m_fault(fault) {}
  Fault fault() const { return m_fault; }
  const char* what() const noexcept override { return "station run-time error"; }

 private:
  Fault m_fault;
};

}  // namespace glidetrak
