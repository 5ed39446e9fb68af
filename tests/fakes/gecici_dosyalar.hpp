#pragma once
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

namespace nevo::sahte {

// The whole file as bytes; "" when it cannot be read.
inline std::string dosyaOku(const std::filesystem::path& yol) {
  std::ifstream f(yol, std::ios::binary);
  std::stringstream s;
  s << f.rdbuf();
  return s.str();
}

// A fresh, empty directory of this test process under the test's temporary directory.
inline std::filesystem::path bosDizin(const std::string& onek) {
  const auto dizin =
      std::filesystem::path(::testing::TempDir()) / (onek + std::to_string(::getpid()));
  std::filesystem::remove_all(dizin);
  std::filesystem::create_directories(dizin);
  return dizin;
}

inline std::size_t girdiSayisi(const std::filesystem::path& dizin) {
  return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(dizin),
                                                std::filesystem::directory_iterator()));
}

}  // namespace nevo::sahte
