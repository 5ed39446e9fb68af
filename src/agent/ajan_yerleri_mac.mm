#import <Foundation/Foundation.h>

#include <string>

#include "agent/ajan_yerleri.hpp"

namespace nevo {

// The bundle's Contents/Resources, the home as the platform reports it, and the agent data
// directory under the user's Library.
AjanYerleri ajanYerleriOlustur(std::string kopruAdresi) {
  NSString* kaynaklar = NSBundle.mainBundle.resourcePath;
  std::optional<std::string> kaynakDizini;
  if (kaynaklar != nil) kaynakDizini = std::string(kaynaklar.fileSystemRepresentation);
  const std::string ev = NSHomeDirectory().fileSystemRepresentation;
  return {std::move(kaynakDizini), ev, ev + "/Library/Application Support/Nevo",
          std::move(kopruAdresi)};
}

}  // namespace nevo
