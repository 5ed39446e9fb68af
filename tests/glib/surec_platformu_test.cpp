// Starting the agent's process on Linux: the child runs in its own directory with its output
// where it was sent, takes no signal mask from the shell, and a program that cannot run
// comes back as the reason, with no child left behind.
#include "agent/surec_platformu.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "fakes/sahte_ajan.hpp"
#include "temel/dosya_oku.hpp"

namespace nevo {
namespace {

namespace fs = std::filesystem;

struct GeciciDizin {
  GeciciDizin() {
    std::string sablon = (fs::temp_directory_path() / "nevo-surec-XXXXXX").string();
    yol = mkdtemp(sablon.data());
  }
  ~GeciciDizin() {
    std::error_code hata;
    fs::remove_all(yol, hata);
  }
  GeciciDizin(const GeciciDizin&) = delete;
  GeciciDizin& operator=(const GeciciDizin&) = delete;
  fs::path yol;
};

// The child is reaped by its handle, from another thread: the test looks until it has ended.
bool bitmesiniBekle(const Surec& surec) {
  return sahte::bekle([&] { return !surec.calisiyor(); });
}

// No child of this process is left, running or unreaped.
bool cocukKalmadi() { return waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD; }

std::string hataMetni(const std::variant<std::unique_ptr<Surec>, std::string>& sonuc) {
  return std::holds_alternative<std::string>(sonuc) ? std::get<std::string>(sonuc) : "";
}

class SurecPlatformuTesti : public ::testing::Test {
 protected:
  // A shell line run by /bin/sh in `dizin.yol`, its output in `cikti`.
  std::variant<std::unique_ptr<Surec>, std::string> calistir(const std::string& satir) {
    const int dosya = open(cikti.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    auto sonuc = platform->bagliBaslat(
        {"/bin/sh", {"-c", satir}, {{"PATH", "/usr/bin:/bin"}}, dizin.yol.string()}, dosya);
    close(dosya);
    return sonuc;
  }

  GeciciDizin dizin;
  fs::path cikti = dizin.yol / "cikti";
  std::unique_ptr<SurecPlatformu> platform = surecPlatformuOlustur();
};

TEST_F(SurecPlatformuTesti, ProgramKendiDizinindeVeOrtamiylaCiktisiniVerir) {
  auto sonuc = calistir("pwd; echo \"$PATH\"; echo hata >&2");
  ASSERT_TRUE(std::holds_alternative<std::unique_ptr<Surec>>(sonuc)) << hataMetni(sonuc);
  ASSERT_TRUE(bitmesiniBekle(*std::get<std::unique_ptr<Surec>>(sonuc)));
  EXPECT_EQ(dosyaOku(cikti).value_or(""),
            fs::canonical(dizin.yol).string() + "\n/usr/bin:/bin\nhata\n");
  EXPECT_TRUE(cocukKalmadi());
}

// The shell holds signals back on its own threads; its agent starts with none held.
TEST_F(SurecPlatformuTesti, CocukKabugunTuttuguSinyalleriTutmaz) {
  sigset_t tutulan;
  sigset_t onceki;
  sigemptyset(&tutulan);
  sigaddset(&tutulan, SIGUSR2);
  sigaddset(&tutulan, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &tutulan, &onceki);
  auto sonuc = calistir("exec grep ^SigBlk: /proc/self/status");
  pthread_sigmask(SIG_SETMASK, &onceki, nullptr);
  ASSERT_TRUE(std::holds_alternative<std::unique_ptr<Surec>>(sonuc)) << hataMetni(sonuc);
  ASSERT_TRUE(bitmesiniBekle(*std::get<std::unique_ptr<Surec>>(sonuc)));
  EXPECT_EQ(dosyaOku(cikti).value_or(""), "SigBlk:\t0000000000000000\n");
}

TEST_F(SurecPlatformuTesti, CalistirilamayanProgramNedeniyleDonerCocukBirakmaz) {
  const auto program = dizin.yol / "node";
  sahte::dosyaYaz(program, "#!/bin/sh\n");
  chmod(program.c_str(), 0644);  // not executable, even for root
  const auto sonuc = platform->bagliBaslat({program.string(), {}, {}, dizin.yol.string()}, -1);
  EXPECT_EQ(hataMetni(sonuc), std::strerror(EACCES));
  EXPECT_TRUE(cocukKalmadi());
}

TEST_F(SurecPlatformuTesti, OlmayanDizindeBaslamazCocukBirakmaz) {
  const auto sonuc =
      platform->bagliBaslat({"/bin/sh", {"-c", "true"}, {}, (dizin.yol / "yok").string()}, -1);
  EXPECT_EQ(hataMetni(sonuc), std::strerror(ENOENT));
  EXPECT_TRUE(cocukKalmadi());
}

TEST_F(SurecPlatformuTesti, BaslayanSurecinKimligiProgramininYoludur) {
  auto sonuc = calistir("exec sleep 30");
  ASSERT_TRUE(std::holds_alternative<std::unique_ptr<Surec>>(sonuc)) << hataMetni(sonuc);
  auto& surec = *std::get<std::unique_ptr<Surec>>(sonuc);
  // The program has been replaced by `sleep` only once the shell line runs.
  const auto sleep = fs::canonical("/bin/sleep").string();
  std::optional<SurecKimligi> kimlik;
  sahte::bekle([&] {
    kimlik = platform->kimlik(surec.numara());
    return !kimlik || kimlik->program == sleep;
  });
  ASSERT_TRUE(kimlik);
  EXPECT_EQ(kimlik->program, sleep);
  surec.sonlandir();
  ASSERT_TRUE(bitmesiniBekle(surec));
  EXPECT_TRUE(cocukKalmadi());
}

}  // namespace
}  // namespace nevo
