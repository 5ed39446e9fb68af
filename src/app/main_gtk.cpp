#include <glib.h>

#include <cstdlib>

#include "app/giris.hpp"
#include "app/uygulama_gtk.hpp"
#include "yapilandirma.hpp"

int main(int argc, char** argv) {
  g_set_application_name("Nevo");
  nevo::GtkKabuk kabuk(nevo::adresSec(std::getenv("NEVO_ADRES"), nevo::yapilandirma::VARSAYILAN_ADRES));
  return kabuk.calistir(argc, argv);
}
