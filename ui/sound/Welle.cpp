// The wave reader: walks over the chunks of a file and takes the first format and the first data.
#include "ui/sound/Welle.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace malvone {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kRiffKopf = 12;   // "RIFF", size, "WAVE"
constexpr std::size_t kStueckKopf = 8;  // name, size
constexpr std::size_t kFormatBytes = 16;
constexpr std::uint32_t kPcm = 1;
constexpr std::uint32_t kKleinsteRate = 1000;  // Hz; what lies outside is a damaged file
constexpr std::uint32_t kGroessteRate = 192000;
constexpr std::size_t kGroessteDatei = std::size_t{16} << 20U;

std::uint32_t Zahl(Bytes bytes, std::size_t stelle, std::size_t breite)
{
    std::uint32_t wert = 0;
    for (std::size_t i = breite; i > 0; --i) {
        wert = wert << 8U | bytes[stelle + i - 1];
    }
    return wert;
}

bool Heisst(Bytes bytes, std::size_t stelle, std::string_view name)
{
    return std::equal(name.begin(), name.end(), bytes.begin() + static_cast<std::ptrdiff_t>(stelle),
                      [](char c, std::uint8_t b) { return static_cast<std::uint8_t>(c) == b; });
}

bool FormatLesen(Bytes format, Welle& welle)
{
    if (format.size() < kFormatBytes || Zahl(format, 0, 2) != kPcm) {
        return false;
    }
    const std::uint32_t kanaele = Zahl(format, 2, 2);
    const std::uint32_t bits = Zahl(format, 14, 2);
    welle.Rate = Zahl(format, 4, 4);
    welle.Kanaele = static_cast<std::uint8_t>(kanaele);
    welle.Bits = static_cast<std::uint8_t>(bits);
    return (kanaele == 1 || kanaele == 2) && (bits == 8 || bits == 16) &&
           welle.Rate >= kKleinsteRate && welle.Rate <= kGroessteRate;
}

}  // namespace

std::optional<Welle> WelleLesen(Bytes bytes)
{
    if (bytes.size() < kRiffKopf || !Heisst(bytes, 0, "RIFF") || !Heisst(bytes, 8, "WAVE")) {
        return std::nullopt;
    }
    Bytes format;
    Bytes daten;
    std::size_t stelle = kRiffKopf;
    while (bytes.size() - stelle >= kStueckKopf) {
        const std::size_t inhalt = stelle + kStueckKopf;
        const std::size_t laenge =
            std::min<std::size_t>(Zahl(bytes, stelle + 4, 4), bytes.size() - inhalt);
        if (format.empty() && Heisst(bytes, stelle, "fmt ")) {
            format = bytes.subspan(inhalt, laenge);
        } else if (daten.empty() && Heisst(bytes, stelle, "data")) {
            daten = bytes.subspan(inhalt, laenge);
        }
        // A chunk of odd size is followed by one byte that belongs to none.
        stelle = std::min(inhalt + laenge + laenge % 2, bytes.size());
    }
    Welle welle;
    if (!FormatLesen(format, welle)) {
        return std::nullopt;
    }
    daten = daten.first(daten.size() - daten.size() % welle.RahmenBytes());
    if (daten.empty()) {
        return std::nullopt;
    }
    welle.Daten.assign(daten.begin(), daten.end());
    return welle;
}

std::optional<Welle> WelleLaden(const std::string& pfad)
{
    // Opening a pipe would wait for its other end.
    std::error_code fehler;
    const std::filesystem::path datei(pfad);
    if (!std::filesystem::is_regular_file(datei, fehler)) {
        return std::nullopt;
    }
    const std::uintmax_t groesse = std::filesystem::file_size(datei, fehler);
    std::ifstream strom(datei, std::ios::binary);
    if (fehler || !strom) {
        return std::nullopt;
    }
    std::string inhalt(static_cast<std::size_t>(std::min<std::uintmax_t>(groesse, kGroessteDatei)),
                       '\0');
    strom.read(inhalt.data(), static_cast<std::streamsize>(inhalt.size()));
    inhalt.resize(static_cast<std::size_t>(strom.gcount()));
    return WelleLesen({reinterpret_cast<const std::uint8_t*>(inhalt.data()), inhalt.size()});
}

}  // namespace malvone
