// beklenen: 'SMAppService' is only available on macOS 13.0 or newer
#import <ServiceManagement/ServiceManagement.h>

long durum() { return static_cast<long>(SMAppService.mainAppService.status); }
