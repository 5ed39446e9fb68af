#include "app/giris.hpp"

namespace nevo {

std::string adresSec(const char* ortamDegeri, const std::string& varsayilan) {
  return ortamDegeri != nullptr ? std::string(ortamDegeri) : varsayilan;
}

}  // namespace nevo
