// Development agent: stands in for the real agent in builds that are not given one. It
// logs that it started and the names of the variables in its environment, then stays up
// until it is sent SIGTERM. "eslestir CODE" pairs nothing: it prints a one-line result and
// exits 0, or prints a message and exits 1 for a code that begins with "HATA". The shell
// hands the output to the page as script text, so it is printed as a JSON string.
import process from "node:process";

const [komut, kod] = process.argv.slice(2);

if (komut === "eslestir") {
  if (String(kod).startsWith("HATA")) {
    process.stderr.write(JSON.stringify(`Geliştirme ajanı: ${kod} kodu reddedildi.`) + "\n");
    process.exit(1);
  }
  process.stdout.write(JSON.stringify(`Geliştirme ajanı ${kod} koduyla eşleşti.`) + "\n");
  process.exit(0);
}

process.on("SIGTERM", () => {
  console.log("[gelistirme-ajani] SIGTERM, cikiyor");
  process.exit(0);
});
const adlar = Object.keys(process.env).sort().join(" ");
console.log(`[gelistirme-ajani] basladi, pid ${process.pid}, ortam: ${adlar}`);
setInterval(() => {}, 1 << 30);
