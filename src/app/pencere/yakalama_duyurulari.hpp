#pragma once
#include <cstddef>
#include <cstdint>
#include <deque>

namespace nevo {

// Where the engine does not say which document asked for a microphone, a camera or a screen
// (WebKitGTK), the top page tells it first: the shell's script in the top frame announces each
// capture call of the top document before the engine sees it, and again when its answer has
// come. A capture request counts as the top page's only when it finds an announced call still
// waiting; it takes that call, so one call is never counted twice. A request no call waits
// for came from a sub-frame.
class YakalamaDuyurulari {
 public:
  // Calls a page may leave waiting at once; beyond them the oldest is forgotten.
  static constexpr std::size_t EN_COK = 32;

  void basladi(std::uint64_t cagri);  // a capture call of the top document starts
  void bitti(std::uint64_t cagri);    // its answer has come (granted, refused or failed)
  // A capture request: true when it takes a waiting call of the top document.
  bool istekGeldi();
  // A new document: the calls of the one before never answer.
  void sifirla() { bekleyenler_.clear(); }

 private:
  std::deque<std::uint64_t> bekleyenler_;
};

}  // namespace nevo
