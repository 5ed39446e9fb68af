// beklenen: 'UNAuthorizationStatusEphemeral' is unavailable: not available on macOS
#import <UserNotifications/UserNotifications.h>

bool anlikMi(UNAuthorizationStatus durum) { return durum == UNAuthorizationStatusEphemeral; }
