#pragma once

// What a server holds of one client, whatever the wire is made of: the part of a message that has
// come, and the part of an answer that has not gone. While there is of the latter nothing more is
// read from that client, so that neither grows.

#include <algorithm>
#include <chrono>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "bench/Wire.h"

namespace glidetrak::bench {

class ServedTalk {
 public:
  explicit ServedTalk(std::unique_ptr<Conversation> conversation)
      : m_conversation(std::move(conversation)) {}

  /// Bytes that may be received now; never 0 when nothing is left to be sent.
  size_t Room() const { return iMostUnread - m_sReceived.size(); }

  /// What was received, at most Room() bytes.
  void Hear(std::string_view bytes) {
    m_sReceived.append(bytes);
    m_heard = std::chrono::steady_clock::now();
  }

  /// The other side sends nothing more.
  void HearEnd() { m_bEnded = true; }

  /// Takes a message when nothing is left to be sent; false when there is none to be taken.
  bool TakeMessage() {
    if (!sToSend.empty() || m_bHungUp) return false;
    const Turn turn = m_conversation->Take(m_sReceived, sToSend);
    m_bHungUp = turn == Turn::HangUp || (turn == Turn::Wait && m_bEnded);
    if (turn == Turn::Wait) return false;
    m_iAnswers = std::min(m_iAnswers + 1, 2);  // it matters whether there was a second
    return true;
  }

  /// There is nothing more to be done for it.
  bool Done() const { return m_bHungUp && sToSend.empty(); }

  /// The first in this order is the first to go when there are too many.
  std::pair<bool, std::chrono::steady_clock::time_point> Worth() const {
    return {m_iAnswers > 1, m_heard};
  }

  std::string sToSend;  ///< the wire takes away what it has sent

 private:
  std::unique_ptr<Conversation> m_conversation;
  std::string m_sReceived;
  std::chrono::steady_clock::time_point m_heard = std::chrono::steady_clock::now();
  int m_iAnswers = 0;
  bool m_bEnded = false;   ///< the other side sends nothing more
  bool m_bHungUp = false;  ///< nothing more is taken
};

}  // namespace glidetrak::bench
