#include "temel/gsettings_gtk.hpp"

namespace nevo {

bool ayarVar(const char* sema, const char* anahtar) {
  GSettingsSchemaSource* kaynak = g_settings_schema_source_get_default();
  if (kaynak == nullptr) return false;
  GSettingsSchema* bulunan = g_settings_schema_source_lookup(kaynak, sema, TRUE);
  if (bulunan == nullptr) return false;
  const bool var = anahtar == nullptr || g_settings_schema_has_key(bulunan, anahtar);
  g_settings_schema_unref(bulunan);
  return var;
}

}  // namespace nevo
