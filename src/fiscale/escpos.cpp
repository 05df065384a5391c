#include "fiscale/escpos.h"

#include "platform/utf8.h"
#include "settings/ini/cp1252.h"

#include <algorithm>
#include <array>

namespace lumigrafo::escpos {

namespace {

// clang-format off
/// Code page 858 from 80 on: 850 with the euro sign.
constexpr std::array<char16_t, 128> kPagina858 = {
    u'Ç', u'ü', u'é', u'â', u'ä', u'à', u'å', u'ç', u'ê', u'ë', u'è', u'ï', u'î', u'ì', u'Ä', u'Å',
    u'É', u'æ', u'Æ', u'ô', u'ö', u'ò', u'û', u'ù', u'ÿ', u'Ö', u'Ü', u'ø', u'£', u'Ø', u'×', u'ƒ',
    u'á', u'í', u'ó', u'ú', u'ñ', u'Ñ', u'ª', u'º', u'¿', u'®', u'¬', u'½', u'¼', u'¡', u'«', u'»',
    u'░', u'▒', u'▓', u'│', u'┤', u'Á', u'Â', u'À', u'©', u'╣', u'║', u'╗', u'╝', u'¢', u'¥', u'┐',
    u'└', u'┴', u'┬', u'├', u'─', u'┼', u'ã', u'Ã', u'╚', u'╔', u'╩', u'╦', u'╠', u'═', u'╬', u'¤',
    u'ð', u'Ð', u'Ê', u'Ë', u'È', u'€', u'Í', u'Î', u'Ï', u'┘', u'┌', u'█', u'▄', u'¦', u'Ì', u'▀',
    u'Ó', u'ß', u'Ô', u'Ò', u'õ', u'Õ', u'µ', u'þ', u'Þ', u'Ú', u'Û', u'Ù', u'ý', u'Ý', u'¯', u'´',
    u'\u00AD', u'±', u'‗', u'¾', u'¶', u'§', u'÷', u'¸', u'°', u'¨', u'·', u'¹', u'³', u'²', u'■', u'\u00A0',
};
// clang-format on

struct Ripiego {
    char32_t carattere;
    const char* testo;
};
/// What people's word processors put in the place of plain signs.
constexpr std::array<Ripiego, 9> kRipieghi{{{U'‘', "'"},
                                            {U'’', "'"},
                                            {U'“', "\""},
                                            {U'”', "\""},
                                            {U'–', "-"},
                                            {U'—', "-"},
                                            {U'…', "."},
                                            {U'•', "*"},
                                            {U'\u00A0', " "}}};

char aPagina858(char32_t c) {
    if (c < 0x80)
        return static_cast<char>(c);
    const auto ripiego =
        std::find_if(kRipieghi.begin(), kRipieghi.end(), [&](const Ripiego& r) { return r.carattere == c; });
    if (ripiego != kRipieghi.end())
        return ripiego->testo[0];
    const auto posto = std::find(kPagina858.begin(), kPagina858.end(), c);
    return posto == kPagina858.end() ? '?' : static_cast<char>(0x80 + (posto - kPagina858.begin()));
}

bool bit(char byte, int quale) {
    return (static_cast<unsigned char>(byte) >> quale & 1) != 0;
}

} // namespace

std::string codificato(std::string_view utf8, bool pagina1252) {
    if (pagina1252)
        return aCp1252(utf8);
    std::string byte;
    for (std::size_t i = 0; i < utf8.size();)
        byte += aPagina858(prossimoCarattere(utf8, i));
    return byte;
}

std::string scontrino(const Modulo& modulo, const ImpostazioniFiscali& impostazioni) {
    constexpr std::string_view kInizio = "\x1B@";         // as after switching on
    constexpr std::string_view kZitta{"\x1D\x61\x00", 3}; // no reports that nobody asked for
    constexpr std::string_view kGrande{"\x1D!\x01\x1B\x45\x01", 6};
    constexpr std::string_view kNormale{"\x1D!\x00\x1B\x45\x00", 6};
    constexpr std::string_view kTaglia{"\x1DVB\x03", 4}; // on to the knife, and a cut that leaves a point
    std::string byte(kInizio);
    byte += kZitta;
    byte += "\x1Bt";
    byte += static_cast<char>(impostazioni.selettore);
    for (const RigaModulo& riga : modulo) {
        const std::string testo = codificato(riga.testo, impostazioni.euro1252) + "\n";
        byte += riga.grande ? std::string(kGrande) + testo + std::string(kNormale) : testo;
    }
    byte += kTaglia;
    return byte;
}

bool risposta(char byte) {
    return !bit(byte, 0) && bit(byte, 1) && bit(byte, 4) && !bit(byte, 7);
}

bool rispostaDiFine(char byte) {
    return !bit(byte, 4) && !bit(byte, 7);
}

bool fineSenzaCarta(char byte) {
    return bit(byte, 2) || bit(byte, 3);
}

std::string impedimento(int quale, char byte) {
    struct Causa {
        int quale, bit;
        const char* testo;
    };
    // The more telling ones first: an open cover also means that the printer is off line.
    static constexpr std::array kCause{
        Causa{1, 2, "Il coperchio della stampante è aperto."},
        Causa{1, 5, "La carta della stampante è finita."},
        Causa{2, 5, "La carta della stampante è finita."},
        Causa{2, 6, "La carta della stampante è finita."},
        Causa{1, 6, "La stampante segnala un errore."},
        Causa{0, 3, "La stampante non è in linea."},
    };
    for (const Causa& causa : kCause)
        if (causa.quale == quale && bit(byte, causa.bit))
            return causa.testo;
    return {};
}

bool cartaInEsaurimento(char byte) {
    return bit(byte, 2) || bit(byte, 3);
}

} // namespace lumigrafo::escpos
