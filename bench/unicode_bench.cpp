// Whole-buffer transcoding over the whole matrix of charsets, against glibc iconv, ICU and memcpy.
//
// Each case converts about 1 MiB of input (whole repetitions of a generated text, put into the source
// charset with iconv) from one charset to another: all 81 ordered pairs of the nine charsets on
// mostly-ASCII text, and the 64 pairs of the eight charsets other than ASCII on accented text. A text
// holds only words (and accented letters) that both charsets of its pair have, as iconv decides.
// Every round runs each implementation once, in an order that rotates from round to round, each
// timed on its own with steady_clock:
//   - ours: Transcode into one std::string reused across rounds;
//   - iconv: glibc iconv into a pre-sized buffer, its state reset first;
//   - ICU: ucnv_convertEx with two open converters, reset and flush, our pivot buffer, a pre-sized
//     output; between UTF-8 and host-order UTF-16 also u_strFromUTF8 / u_strToUTF8 (the faster ICU
//     call counts);
//   - memcpy of max(input size, output size) bytes between two pre-allocated buffers.
// Before timing, each case checks that the outputs of iconv and ICU equal ours byte for byte; a case
// that differs is skipped, naming each peer's first differing offset and bytes, and counted as a
// failure (exit status 1). The counters are medians of the 21 rounds: MB/s of input bytes (memcpy: of
// the bytes it copies; 1 MB = 10^6 bytes), vs_best_peer = time of the faster of iconv and ICU / our
// time, vs_memcpy = our time / memcpy time. The benchmark's time is ours; its CPU time covers every
// implementation of the round.
//
// Goals:
//   1. vs_best_peer >= 1 on every case: at least as fast as the better of iconv and ICU;
//   2. vs_memcpy <= 3 on every mostly-ASCII case.
// After the benchmarks, a summary of the cases that ran: the cases that miss each goal and the worst
// of them, any output that differed, and a Markdown table of every case (for BENCHMARKS.md).
#include "PlurexData/unicode/Charset.h"
#include "PlurexData/unicode/Transcode.h"

#include <benchmark/benchmark.h>
#include <iconv.h>
#include <unicode/ucnv.h>
#include <unicode/ustring.h>
#include <unicode/utypes.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Korv::Plurex::Unicode::Charset;
using Korv::Plurex::Unicode::GetCharsets;
using Korv::Plurex::Unicode::Transcode;

constexpr std::size_t InputLimit = std::size_t{1} << 20;
// UTF-8 bytes of the generated text before it is repeated: long enough that the repetition does not
// turn every branch into a predictable pattern.
constexpr std::size_t TextBytes = 16384;
constexpr int Rounds = 21;
// UChars of the pivot buffer handed to ucnv_convertEx: ICU ran as fast with 8192 as with 65536, and
// faster than with its own default of 1024.
constexpr std::size_t PivotUnits = 8192;

struct CharsetNames {
    Charset charset;
    const char* label;
    const char* iconv;
    const char* icu;
};

const CharsetNames& NamesOf(Charset charset) {
    static const CharsetNames names[] = {
        {Charset::Ascii, "Ascii", "ASCII", "US-ASCII"},
        {Charset::CodePage437, "CodePage437", "IBM437", "ibm-437"},
        {Charset::CodePage28591, "CodePage28591", "ISO-8859-1", "ISO-8859-1"},
        {Charset::CodePage28592, "CodePage28592", "ISO-8859-2", "ISO-8859-2"},
        {Charset::Utf8, "Utf8", "UTF-8", "UTF-8"},
        {Charset::Utf16LE, "Utf16LE", "UTF-16LE", "UTF-16LE"},
        {Charset::Utf16BE, "Utf16BE", "UTF-16BE", "UTF-16BE"},
        {Charset::Utf32LE, "Utf32LE", "UTF-32LE", "UTF-32LE"},
        {Charset::Utf32BE, "Utf32BE", "UTF-32BE", "UTF-32BE"},
    };
    for (const CharsetNames& entry : names) {
        if (entry.charset == charset) {
            return entry;
        }
    }
    throw std::invalid_argument("no names for a charset");
}

// u_strFromUTF8 and u_strToUTF8 work on UChar in host order.
Charset HostUtf16() {
    const std::uint16_t one = 1;
    unsigned char first = 0;
    std::memcpy(&first, &one, 1);
    return first == 1 ? Charset::Utf16LE : Charset::Utf16BE;
}

// How a peer's conversion ended: `ok`, or where it stopped and why.
struct Outcome {
    bool ok;
    std::size_t written;
    std::size_t consumed;
    std::string error;
};

class Iconv {
public:
    Iconv(const char* from, const char* to) : descriptor_(iconv_open(to, from)) {
        if (reinterpret_cast<std::intptr_t>(descriptor_) == -1) {
            throw std::runtime_error(std::string("iconv_open failed: ") + from + " to " + to);
        }
    }
    Iconv(const Iconv&) = delete;
    Iconv& operator=(const Iconv&) = delete;
    ~Iconv() { iconv_close(descriptor_); }

    Outcome Convert(std::string_view input, char* output, std::size_t capacity) {
        // iconv's prototype lacks the const; it never writes through the input pointer.
        char* in = const_cast<char*>(input.data());
        std::size_t inLeft = input.size();
        char* out = output;
        std::size_t outLeft = capacity;
        iconv(descriptor_, nullptr, nullptr, nullptr, nullptr);
        const bool ok = iconv(descriptor_, &in, &inLeft, &out, &outLeft) != static_cast<std::size_t>(-1);
        return {ok, capacity - outLeft, input.size() - inLeft, ok ? std::string() : std::strerror(errno)};
    }

private:
    iconv_t descriptor_;
};

class IcuConverters {
public:
    IcuConverters(const char* from, const char* to)
        : source_(Open(from)), target_(Open(to)), pivot_(PivotUnits) {}
    IcuConverters(const IcuConverters&) = delete;
    IcuConverters& operator=(const IcuConverters&) = delete;
    ~IcuConverters() {
        ucnv_close(source_);
        ucnv_close(target_);
    }

    Outcome Convert(std::string_view input, char* output, std::size_t capacity) {
        const char* in = input.data();
        char* out = output;
        UChar* pivotSource = pivot_.data();
        UChar* pivotTarget = pivot_.data();
        UErrorCode status = U_ZERO_ERROR;
        ucnv_convertEx(target_, source_, &out, output + capacity, &in, input.data() + input.size(),
                       pivot_.data(), &pivotSource, &pivotTarget, pivot_.data() + pivot_.size(), true, true,
                       &status);
        // A full output only warns that ICU had no room for its terminating NUL.
        const bool ok = U_SUCCESS(status);
        return {ok, static_cast<std::size_t>(out - output), static_cast<std::size_t>(in - input.data()),
                ok ? std::string() : u_errorName(status)};
    }

private:
    // Stops at the first character it cannot convert, as iconv does, instead of substituting one.
    static UConverter* Open(const char* name) {
        UErrorCode status = U_ZERO_ERROR;
        UConverter* converter = ucnv_open(name, &status);
        if (U_FAILURE(status)) {
            throw std::runtime_error(std::string("ucnv_open failed: ") + name + ": " + u_errorName(status));
        }
        ucnv_setToUCallBack(converter, UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
        ucnv_setFromUCallBack(converter, UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
        if (U_FAILURE(status)) {
            ucnv_close(converter);
            throw std::runtime_error(std::string("ucnv_set callbacks failed: ") + name);
        }
        return converter;
    }

    UConverter* source_;
    UConverter* target_;
    std::vector<UChar> pivot_;
};

// ----------------------------------------------------------------------------------------------------
// Texts

// splitmix64: the same text on every platform and library, which std::uniform_int_distribution is not.
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::size_t Below(std::size_t bound) {
        state_ += 0x9E3779B97F4A7C15u;
        std::uint64_t z = state_;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return static_cast<std::size_t>((z ^ (z >> 31)) % bound);
    }

private:
    std::uint64_t state_;
};

using Words = std::vector<std::string_view>;

// Words of a broadcast control room, as each language writes them.
const Words German = {
    "Übertragung",  "Größe",         "Schnittplatz", "Bildmischer", "Tonregie",     "Sendeablauf",
    "Zuspielung",   "für",           "über",         "Nachrichten", "Wetter",       "Außenübertragung",
    "Kamerafahrt",  "Beitrag",       "Länge",        "Anfang",      "Übergänge",    "Störung",
    "Prüfung",      "Regie",         "Abspann",      "Vorschau",    "stündlich",    "Aufzeichnung",
    "Wiederholung", "Schlüsselbild", "Fernsehen",    "Zuschauer",   "Bearbeitung",  "gelöscht",
    "geändert",     "gespeichert",   "Verzögerung",  "Empfänger",   "Kanäle",       "Tonspur",
    "Moderatorin",  "Einspieler",    "Bildstörung",  "Sprecher",    "Endkontrolle", "Sendung",
    "München",      "Köln",          "Düsseldorf",   "Zürich",      "heute",        "Abend",
    "Sportschau",
};
const Words French = {
    "émission", "séquence", "régie",       "caméra",   "montage",     "générique",    "début",
    "fin",      "durée",    "enregistrée", "diffusée", "journal",     "météo",        "à",
    "être",     "déjà",     "après",       "fenêtre",  "chaîne",      "réalisateur",  "présentatrice",
    "contrôle", "vidéo",    "mélangeur",   "écran",    "sélectionné", "boîte",        "coût",
    "où",       "reçu",     "leçon",       "français", "Noël",        "naïve",        "œuvre",
    "plateau",  "direct",   "son",         "image",    "bandeau",     "incrustation", "retransmission",
    "Genève",   "Orléans",  "Besançon",    "soirée",   "été",         "prêt",
};
const Words Spanish = {
    "canción", "emisión", "señal",    "cámara",    "edición",     "sesión",    "también",   "pantalla",
    "añadir",  "último",  "después",  "música",    "vídeo",       "grabación", "dirección", "más",
    "año",     "español", "¿listo?",  "¡directo!", "realización", "noticias",  "rótulo",    "sonido",
    "Málaga",  "Bogotá",  "Medellín", "mañana",    "continuidad", "imagen",    "corte",     "publicidad",
};
const Words Portuguese = {
    "transmissão", "edição", "câmera",  "não",   "programação", "vídeo",    "informações", "áudio",
    "gravação",    "sessão", "emissão", "canal", "sinal",       "notícias", "legendas",    "duração",
    "São Paulo",   "Lisboa", "imagem",  "ação",  "direção",     "previsão", "tempo",       "estúdio",
};
const Words Czech = {
    "přenos",  "kamera",     "střih",    "záznam",  "vysílání", "zpráva",   "počasí",   "režie",
    "obraz",   "zvuk",       "čas",      "začátek", "konec",    "délka",    "uloženo",  "změna",
    "během",   "přehrávání", "příprava", "studio",  "kanál",    "pořad",    "hlasatel", "titulky",
    "úprava",  "šířka",      "výška",    "ředitel", "náhled",   "soubor",   "dnešní",   "večerní",
    "žádný",   "často",      "ještě",    "Brno",    "Ostrava",  "Plzeň",    "zprávy",   "sport",
    "střižna", "mixážní",    "pult",     "signál",  "výpadek",  "zpoždění", "živě",     "reportáž",
};
const Words Polish = {
    "transmisja", "nagranie", "kamera",    "wiadomości", "pogoda",  "reżyser", "dźwięk",  "obraz",
    "początek",   "koniec",   "długość",   "zapisano",   "zmiana",  "podgląd", "plik",    "kanał",
    "prowadzący", "napisy",   "szerokość", "wysokość",   "źródło",  "wyjście", "wejście", "łącze",
    "opóźnienie", "sygnał",   "jakość",    "ścieżka",    "gałąź",   "żółty",   "Łódź",    "Gdańsk",
    "Kraków",     "Wrocław",  "studio",    "reportaż",   "relacja", "na",      "żywo",    "serwis",
};
const Words Greek = {
    "μετάδοση",    "κάμερα",   "ειδήσεις",   "καιρός", "εκπομπή",   "ήχος",       "εικόνα", "αρχή",
    "τέλος",       "διάρκεια", "αποθήκευση", "αλλαγή", "κανάλι",    "σκηνοθέτης", "σήμα",   "Αθήνα",
    "Θεσσαλονίκη", "ζωντανά",  "στούντιο",   "μοντάζ", "υπότιτλοι", "αθλητικά",
};
const Words Russian = {
    "передача", "камера",       "новости", "погода",    "эфир",  "звук",     "изображение", "начало",
    "конец",    "длительность", "запись",  "изменение", "канал", "режиссёр", "сигнал",      "студия",
    "монтаж",   "Москва",       "прямой",  "субтитры",  "спорт", "вечерний", "выпуск",      "задержка",
};
const Words Cjk = {"放送", "映像", "音声", "編集", "ニュース", "番組", "新闻", "节目", "频道", "直播"};
const Words Emoji = {"🎬", "📺", "🎥", "🔴"};

// A share of the words of a text: words of one language, drawn with a relative weight.
struct Share {
    const Words* words;
    std::size_t weight;
};

// The languages each source charset serves; the Unicode forms get a mix of them all, a few CJK words
// and now and then a character outside the BMP.
std::vector<Share> LanguagesOf(Charset source) {
    switch (source) {
        case Charset::CodePage28592:
            return {{&Czech, 1}, {&Polish, 1}};
        case Charset::CodePage437:
        case Charset::CodePage28591:
            return {{&German, 2}, {&French, 2}, {&Spanish, 1}, {&Portuguese, 1}};
        case Charset::Ascii:
            return {};
        default:
            return {{&Czech, 20},      {&Polish, 20}, {&German, 20},  {&French, 20}, {&Spanish, 10},
                    {&Portuguese, 10}, {&Greek, 20},  {&Russian, 20}, {&Cjk, 8},     {&Emoji, 1}};
    }
}

// Sentences of a control room, about 120 characters once filled, each with one accented word ({a}):
// {c} a clip, {h} a channel, {t} a timecode, {o} an operator.
const char* const Sentences[] = {
    "Clip {c} was recorded on {h} from {t} to {t}; {o} marked two cue points for the {a} bulletin.",
    "{o} loaded {c} on {h} at {t} and cued it to the first frame of the interview with {a}.",
    "Operator {o} reports that {h} dropped frames at {t} while playing {c} from the {a} feed.",
    "The {a} correspondent filed {c}; it runs 00:01:42:10 and goes to air on {h} at {t}.",
    "Replay {c} of the match in {a} is ready on {h}, in point {t}, out point {t}, audio on tracks 1 and 2.",
    "At {t} {o} switched {h} to the backup server because {c} from {a} would not cue.",
    "Please trim {c} to start at {t}: the first shot of {a} is soft and the director wants it gone.",
    "{h} is recording the press conference in {a} as {c}, started at {t} by {o}, no end time set.",
    "Weather segment {c} was rendered again with the new map of {a} and loaded on {h} at {t}.",
    "{o} renamed {c} to include the guest name {a} and moved it to the evening rundown at {t}.",
    "Sports desk: the goal by {a} is clip {c}, in point {t}; {o} will send it to {h} for the replay.",
    "Subtitles for {c} are late again; {o} asked the {a} office to deliver them before {t} on {h}.",
    "Ingest of {c} from the {a} satellite feed finished at {t}; {h} keeps a copy until midnight.",
    "The playlist on {h} jumps from {c} to the commercial break at {t}, as {a} requested this morning.",
};
const Words ClipPrefixes = {"NEWS", "SPORT", "PROMO", "WX", "ING", "PKG", "VO", "SOT"};
const Words Channels = {"PGM 1", "PGM 2",    "REC 3", "REC 4", "channel B", "server 10 channel A",
                        "ISO 2", "playout 1"};
const Words Operators = {"Smith",  "Patel", "Jones",  "Nguyen", "Walker",
                         "Okafor", "Brown", "Taylor", "Hughes", "Evans"};
// Names and places with one letter outside ASCII each, and the plain ones that stand in for them where
// a pair of charsets shares none.
const Words AccentedNames = {
    "Zürich",  "Müller", "Köln",   "Renée",     "José",       "Björn",  "Göteborg", "Søren",     "Århus",
    "Málaga",  "Gómez",  "Muñoz",  "François",  "Noël",       "Zoë",    "Orléans",  "São Paulo", "Kraków",
    "Gdańsk",  "Poznań", "Łukasz", "Plzeň",     "Dušan",      "Šimon",  "Žilina",   "Novák",     "Győr",
    "Erdős",   "Kovács", "Genève", "Montréal",  "Düsseldorf", "Bogotá", "Medellín", "Malmö",     "Tromsø",
    "Wrocław", "Košice", "Pécs",   "Reykjavík", "Óscar",      "Ángel",  "Besançon", "Linköping",
};
const Words PlainNames = {"Berlin", "Madrid", "Paris", "Prague", "Warsaw", "Vienna", "Dublin", "Lisbon"};

// Which words a charset has, as iconv converts them from UTF-8 without loss.
class Repertoire {
public:
    explicit Repertoire(Charset charset) : fromUtf8_("UTF-8", NamesOf(charset).iconv) {}

    bool Has(std::string_view word) {
        char buffer[64];
        return fromUtf8_.Convert(word, buffer, sizeof buffer).ok;
    }

private:
    Iconv fromUtf8_;
};

Words BothHave(const Words& words, Repertoire& first, Repertoire& second) {
    Words kept;
    for (std::string_view word : words) {
        if (first.Has(word) && second.Has(word)) {
            kept.push_back(word);
        }
    }
    return kept;
}

std::string MostlyAsciiText(Charset from, Charset to) {
    Repertoire first(from);
    Repertoire second(to);
    Words names = BothHave(AccentedNames, first, second);
    if (names.empty()) {
        names = PlainNames;
    }
    Random random(20240601);
    std::string text;
    while (text.size() < TextBytes) {
        const std::string_view sentence = Sentences[random.Below(std::size(Sentences))];
        for (std::size_t i = 0; i < sentence.size(); ++i) {
            if (sentence[i] != '{') {
                text += sentence[i];
                continue;
            }
            const char slot = sentence[i + 1];
            i += 2;
            char buffer[16];
            switch (slot) {
                case 'c':
                    std::snprintf(buffer, sizeof buffer, "_%04u", static_cast<unsigned>(random.Below(10000)));
                    text.append(ClipPrefixes[random.Below(ClipPrefixes.size())]).append(buffer);
                    break;
                case 'h':
                    text.append(Channels[random.Below(Channels.size())]);
                    break;
                case 't':
                    std::snprintf(
                        buffer, sizeof buffer, "%02u:%02u:%02u:%02u", static_cast<unsigned>(random.Below(24)),
                        static_cast<unsigned>(random.Below(60)), static_cast<unsigned>(random.Below(60)),
                        static_cast<unsigned>(random.Below(25)));
                    text.append(buffer);
                    break;
                case 'o':
                    text.append(Operators[random.Below(Operators.size())]);
                    break;
                default:
                    text.append(names[random.Below(names.size())]);
                    break;
            }
        }
        text += ' ';
    }
    return text;
}

std::string AccentedText(Charset from, Charset to) {
    Repertoire first(from);
    Repertoire second(to);
    std::vector<Words> kept;
    std::vector<std::size_t> weights;
    std::size_t total = 0;
    for (const Share& share : LanguagesOf(from)) {
        Words words = BothHave(*share.words, first, second);
        if (!words.empty()) {
            kept.push_back(std::move(words));
            weights.push_back(share.weight);
            total += share.weight;
        }
    }
    if (total == 0) {
        throw std::runtime_error("no accented word in both charsets");
    }
    Random random(20240602);
    std::string text;
    while (text.size() < TextBytes) {
        std::size_t pick = random.Below(total);
        std::size_t language = 0;
        while (pick >= weights[language]) {
            pick -= weights[language++];
        }
        text.append(kept[language][random.Below(kept[language].size())]);
        const std::size_t separator = random.Below(12);
        text.append(separator == 0 ? ". " : separator == 1 ? ", " : " ");
    }
    return text;
}

enum class TextKind { MostlyAscii, Accented };

const char* ToLabel(TextKind kind) {
    return kind == TextKind::MostlyAscii ? "MostlyAscii" : "Accented";
}

// The text of the pair in the source charset, repeated whole up to 1 MiB.
std::string MakeInput(Charset from, Charset to, TextKind kind) {
    const std::string text =
        kind == TextKind::MostlyAscii ? MostlyAsciiText(from, to) : AccentedText(from, to);
    Iconv toSource("UTF-8", NamesOf(from).iconv);
    std::vector<char> buffer(text.size() * 4);
    const Outcome outcome = toSource.Convert(text, buffer.data(), buffer.size());
    if (!outcome.ok) {
        throw std::runtime_error(std::string("iconv cannot put the text into ") + NamesOf(from).iconv);
    }
    const std::string_view once(buffer.data(), outcome.written);
    std::string input;
    input.reserve(InputLimit);
    while (input.size() + once.size() <= InputLimit) {
        input.append(once);
    }
    return input;
}

// ----------------------------------------------------------------------------------------------------
// Cases

// Seconds of each implementation, one entry a round.
struct RoundTimes {
    std::vector<double> ours;
    std::vector<double> iconv;
    std::vector<double> icuConvertEx;
    std::vector<double> icuUtf16;
    std::vector<double> memcpy;
};

struct Case {
    Case(Charset fromCharset, Charset toCharset, TextKind textKind)
        : from(fromCharset),
          to(toCharset),
          kind(textKind),
          name(std::string("Transcode/") + NamesOf(from).label + "/" + NamesOf(to).label + "/" +
               ToLabel(kind)) {}

    Charset from;
    Charset to;
    TextKind kind;
    std::string name;
    // Filled when the case runs; the rounds of every run (--benchmark_repetitions) add up.
    bool ran = false;
    std::string failure;
    std::size_t inputBytes = 0;
    std::size_t copiedBytes = 0;
    RoundTimes times;
};

double Median(std::vector<double> values) {
    if (values.empty()) {
        return 0;
    }
    const std::size_t middle = values.size() / 2;
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(middle), values.end());
    const double upper = values[middle];
    if (values.size() % 2 != 0) {
        return upper;
    }
    return (upper + *std::max_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(middle))) /
           2;
}

// Medians of a case's rounds, in seconds.
struct Figures {
    double ours;
    double iconv;
    double icu;
    double memcpy;

    double BestPeer() const { return std::min(iconv, icu); }
    double VsBestPeer() const { return BestPeer() / ours; }
    double VsMemcpy() const { return ours / memcpy; }
};

Figures FiguresOf(const RoundTimes& times) {
    double icu = Median(times.icuConvertEx);
    if (!times.icuUtf16.empty()) {
        icu = std::min(icu, Median(times.icuUtf16));
    }
    return {Median(times.ours), Median(times.iconv), icu, Median(times.memcpy)};
}

double MegabytesPerSecond(std::size_t bytes, double seconds) {
    return static_cast<double>(bytes) / seconds / 1e6;
}

std::string Hex(std::string_view bytes, std::size_t offset) {
    if (offset >= bytes.size()) {
        return "(end)";
    }
    std::string text;
    for (std::size_t i = offset; i < bytes.size() && i < offset + 8; ++i) {
        char buffer[4];
        std::snprintf(buffer, sizeof buffer, "%02X",
                      static_cast<unsigned>(static_cast<unsigned char>(bytes[i])));
        text.append(text.empty() ? "" : " ").append(buffer);
    }
    return text;
}

// Empty when `theirs` equals `ours`, else where and how they first differ.
std::string Difference(const char* peer, const Outcome& outcome, std::string_view ours,
                       std::string_view theirs) {
    if (!outcome.ok) {
        // The texts hold only what both charsets have, so this is a fault of the text, not of a peer.
        return std::string(peer) + " cannot convert the text: " + outcome.error + " at input byte " +
               std::to_string(outcome.consumed);
    }
    if (ours == theirs) {
        return {};
    }
    const auto mismatch = std::mismatch(ours.begin(), ours.end(), theirs.begin(), theirs.end());
    const auto offset = static_cast<std::size_t>(mismatch.first - ours.begin());
    return std::string(peer) + " differs from ours at output byte " + std::to_string(offset) + ": ours " +
           Hex(ours, offset) + ", " + peer + " " + Hex(theirs, offset) + " (sizes " +
           std::to_string(ours.size()) + " and " + std::to_string(theirs.size()) + ")";
}

struct Contender {
    std::vector<double> RoundTimes::*seconds;
    std::function<void()> run;
};

void RunCase(benchmark::State& state, Case* c) {
    using Clock = std::chrono::steady_clock;
    c->ran = true;
    const CharsetNames& from = NamesOf(c->from);
    const CharsetNames& to = NamesOf(c->to);
    const std::string input = MakeInput(c->from, c->to, c->kind);
    // Room for the largest growth of any pair (one byte to four in UTF-32).
    const std::size_t capacity = input.size() * 4 + 16;

    std::string ours;
    Transcode(input, c->from, c->to, ours);

    Iconv iconvPeer(from.iconv, to.iconv);
    std::vector<char> iconvOutput(capacity);
    const Outcome iconvOutcome = iconvPeer.Convert(input, iconvOutput.data(), iconvOutput.size());
    IcuConverters icuPeer(from.icu, to.icu);
    std::vector<char> icuOutput(capacity);
    const Outcome icuOutcome = icuPeer.Convert(input, icuOutput.data(), icuOutput.size());
    // Every peer that differs is named, each at its first differing byte.
    std::string failure;
    const auto check = [&](const char* peer, const Outcome& outcome, std::string_view theirs) {
        const std::string difference = Difference(peer, outcome, ours, theirs);
        if (!difference.empty()) {
            failure.append(failure.empty() ? "" : "; ").append(difference);
        }
    };
    check("iconv", iconvOutcome, {iconvOutput.data(), iconvOutcome.written});
    check("ICU", icuOutcome, {icuOutput.data(), icuOutcome.written});

    // ICU's direct calls between UTF-8 and UTF-16 in host order. The UTF-16 input is copied into
    // UChars (untimed), as a caller of u_strToUTF8 holds it.
    const Charset hostUtf16 = HostUtf16();
    const bool fromUtf8 = c->from == Charset::Utf8 && c->to == hostUtf16;
    const bool toUtf8 = c->from == hostUtf16 && c->to == Charset::Utf8;
    std::vector<UChar> units(fromUtf8 ? input.size() + 1 : input.size() / 2);
    if (toUtf8) {
        std::memcpy(units.data(), input.data(), units.size() * sizeof(UChar));
    }
    std::vector<char> utf8Output(toUtf8 ? units.size() * 3 + 1 : 0);
    const auto runFromUtf8 = [&] {
        UErrorCode status = U_ZERO_ERROR;
        std::int32_t length = 0;
        u_strFromUTF8(units.data(), static_cast<std::int32_t>(units.size()), &length, input.data(),
                      static_cast<std::int32_t>(input.size()), &status);
        return Outcome{U_SUCCESS(status) != 0, static_cast<std::size_t>(length) * sizeof(UChar), 0,
                       U_SUCCESS(status) != 0 ? std::string() : u_errorName(status)};
    };
    const auto runToUtf8 = [&] {
        UErrorCode status = U_ZERO_ERROR;
        std::int32_t length = 0;
        u_strToUTF8(utf8Output.data(), static_cast<std::int32_t>(utf8Output.size()), &length, units.data(),
                    static_cast<std::int32_t>(units.size()), &status);
        return Outcome{U_SUCCESS(status) != 0, static_cast<std::size_t>(length), 0,
                       U_SUCCESS(status) != 0 ? std::string() : u_errorName(status)};
    };
    if (fromUtf8) {
        const Outcome outcome = runFromUtf8();
        check("ICU u_strFromUTF8", outcome, {reinterpret_cast<const char*>(units.data()), outcome.written});
    }
    if (toUtf8) {
        const Outcome outcome = runToUtf8();
        check("ICU u_strToUTF8", outcome, {utf8Output.data(), outcome.written});
    }
    if (!failure.empty()) {
        c->failure = failure;
        state.SkipWithError(failure.c_str());
        return;
    }

    c->inputBytes = input.size();
    c->copiedBytes = std::max(input.size(), ours.size());
    std::vector<char> copySource(c->copiedBytes, 'x');
    std::vector<char> copyTarget(c->copiedBytes);

    std::vector<Contender> contenders = {
        {&RoundTimes::ours, [&] { Transcode(input, c->from, c->to, ours); }},
        {&RoundTimes::iconv, [&] { iconvPeer.Convert(input, iconvOutput.data(), iconvOutput.size()); }},
        {&RoundTimes::icuConvertEx, [&] { icuPeer.Convert(input, icuOutput.data(), icuOutput.size()); }},
        {&RoundTimes::memcpy,
         [&] {
             std::memcpy(copyTarget.data(), copySource.data(), copyTarget.size());
             benchmark::DoNotOptimize(copyTarget.data());
         }},
    };
    if (fromUtf8) {
        contenders.push_back({&RoundTimes::icuUtf16, [&] { runFromUtf8(); }});
    }
    if (toUtf8) {
        contenders.push_back({&RoundTimes::icuUtf16, [&] { runToUtf8(); }});
    }

    // This run's rounds give its counters; the case keeps the rounds of every run for the summary.
    RoundTimes run;
    std::size_t round = 0;
    for (auto _ : state) {
        for (std::size_t i = 0; i < contenders.size(); ++i) {
            const Contender& contender = contenders[(round + i) % contenders.size()];
            const auto start = Clock::now();
            contender.run();
            const auto end = Clock::now();
            (run.*contender.seconds).push_back(std::chrono::duration<double>(end - start).count());
        }
        benchmark::DoNotOptimize(ours.data());
        state.SetIterationTime(run.ours.back());
        ++round;
    }
    for (const Contender& contender : contenders) {
        std::vector<double>& all = c->times.*contender.seconds;
        all.insert(all.end(), (run.*contender.seconds).begin(), (run.*contender.seconds).end());
    }

    const Figures figures = FiguresOf(run);
    state.counters["ours_MB/s"] = MegabytesPerSecond(input.size(), figures.ours);
    state.counters["iconv_MB/s"] = MegabytesPerSecond(input.size(), figures.iconv);
    state.counters["ICU_MB/s"] = MegabytesPerSecond(input.size(), figures.icu);
    state.counters["memcpy_MB/s"] = MegabytesPerSecond(c->copiedBytes, figures.memcpy);
    state.counters["vs_best_peer"] = figures.VsBestPeer();
    state.counters["vs_memcpy"] = figures.VsMemcpy();
}

std::string Describe(const Case& c) {
    return std::string(NamesOf(c.from).label) + " -> " + NamesOf(c.to).label + " " + ToLabel(c.kind);
}

// Prints the summary of the cases that ran; returns the number whose outputs differed.
std::size_t PrintSummary(const std::deque<Case>& cases) {
    std::vector<const Case*> ran;
    std::vector<const Case*> measured;
    for (const Case& c : cases) {
        if (c.ran) {
            ran.push_back(&c);
            if (c.failure.empty()) {
                measured.push_back(&c);
            }
        }
    }
    std::printf(
        "\nSummary of %zu cases (medians of %d rounds a run; MB/s of input bytes, 1 MB = 10^6 bytes)\n",
        ran.size(), Rounds);

    std::size_t belowOne = 0;
    const Case* worstPeer = nullptr;
    std::size_t aboveThree = 0;
    std::size_t mostlyAscii = 0;
    const Case* worstMemcpy = nullptr;
    for (const Case* c : measured) {
        const Figures figures = FiguresOf(c->times);
        if (figures.VsBestPeer() < 1) {
            ++belowOne;
        }
        if (worstPeer == nullptr || figures.VsBestPeer() < FiguresOf(worstPeer->times).VsBestPeer()) {
            worstPeer = c;
        }
        if (c->kind == TextKind::MostlyAscii) {
            ++mostlyAscii;
            if (figures.VsMemcpy() > 3) {
                ++aboveThree;
            }
            if (worstMemcpy == nullptr || figures.VsMemcpy() > FiguresOf(worstMemcpy->times).VsMemcpy()) {
                worstMemcpy = c;
            }
        }
    }
    std::printf("Goal 1, at least the better of iconv and ICU (vs best peer >= 1): %zu of %zu cases below 1",
                belowOne, measured.size());
    if (worstPeer != nullptr) {
        std::printf("; worst %s at %.2f", Describe(*worstPeer).c_str(),
                    FiguresOf(worstPeer->times).VsBestPeer());
    }
    std::printf("\nGoal 2, mostly-ASCII within 3x memcpy (vs memcpy <= 3): %zu of %zu cases above 3",
                aboveThree, mostlyAscii);
    if (worstMemcpy != nullptr) {
        std::printf("; worst %s at %.2f", Describe(*worstMemcpy).c_str(),
                    FiguresOf(worstMemcpy->times).VsMemcpy());
    }
    std::printf("\nOutputs differed: %zu case(s), counted as failures\n", ran.size() - measured.size());
    for (const Case* c : ran) {
        if (!c->failure.empty()) {
            std::printf("  %s: %s\n", Describe(*c).c_str(), c->failure.c_str());
        }
    }

    std::printf(
        "\n| from | to | text | ours MB/s | iconv MB/s | ICU MB/s | vs best peer | vs memcpy |\n"
        "| --- | --- | --- | ---: | ---: | ---: | ---: | ---: |\n");
    for (const Case* c : ran) {
        std::printf("| %s | %s | %s ", NamesOf(c->from).label, NamesOf(c->to).label, ToLabel(c->kind));
        if (!c->failure.empty()) {
            std::printf("| differs | | | | |\n");
            continue;
        }
        const Figures figures = FiguresOf(c->times);
        std::printf("| %.0f | %.0f | %.0f | %.2f | %.2f |\n", MegabytesPerSecond(c->inputBytes, figures.ours),
                    MegabytesPerSecond(c->inputBytes, figures.iconv),
                    MegabytesPerSecond(c->inputBytes, figures.icu), figures.VsBestPeer(), figures.VsMemcpy());
    }
    std::fflush(stdout);
    return ran.size() - measured.size();
}

}  // namespace

int main(int argc, char** argv) {
    // A deque keeps each case where the benchmark registered it.
    std::deque<Case> cases;
    for (TextKind kind : {TextKind::MostlyAscii, TextKind::Accented}) {
        for (Charset from : GetCharsets()) {
            for (Charset to : GetCharsets()) {
                if (kind == TextKind::Accented && (from == Charset::Ascii || to == Charset::Ascii)) {
                    continue;
                }
                cases.emplace_back(from, to, kind);
                benchmark::RegisterBenchmark(cases.back().name.c_str(), RunCase, &cases.back())
                    ->Iterations(Rounds)
                    ->UseManualTime()
                    ->Unit(benchmark::kMicrosecond);
            }
        }
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return PrintSummary(cases) == 0 ? 0 : 1;
}
