// DrehbuchTest.cpp: what holds for every script: an answer to each command, and a quiet end.
#include "tests/drehbuch/Drehbuch.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/drehbuch/Texte.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmMsgJa.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

namespace fs = std::filesystem;

// Fresh folders for each test; scripts are played in this process.
class DrehbuchTest : public testing::Test
{
protected:
    DrehbuchTest()
    {
        std::string name = (fs::temp_directory_path() / "malvone-XXXXXX").string();
        EXPECT_NE(mkdtemp(name.data()), nullptr);
        folder_ = name;
        fs::create_directory(folder_ / "daten");
        fs::create_directory(folder_ / "programm");
    }
    ~DrehbuchTest() override { fs::remove_all(folder_); }

    Optionen Ordner() const { return {folder_ / "daten", folder_ / "programm"}; }

    std::string Spiele(const std::string& script) const
    {
        std::istringstream in(script);
        std::ostringstream out;
        Drehbuch(in, out, Ordner()).Spielen();
        return out.str();
    }

    // All files below the folder of the data, with their bytes.
    std::map<std::string, std::string> Dateien() const
    {
        std::map<std::string, std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(folder_ / "daten")) {
            std::ifstream file(entry.path(), std::ios::binary);
            std::ostringstream bytes;
            bytes << file.rdbuf();
            files[entry.path().string()] = bytes.str();
        }
        return files;
    }

    fs::path folder_;
};

std::vector<std::string> Zeilen(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::ptrdiff_t Wartezeilen(const std::string& transcript)
{
    const auto lines = Zeilen(transcript);
    return std::count_if(lines.begin(), lines.end(),
                         [](const std::string& line) { return line.starts_with("> "); });
}

std::string LetzteZeile(const std::string& transcript)
{
    const auto lines = Zeilen(transcript);
    return lines.empty() ? "" : lines.back();
}

// Opens every window in turn, with a message on top of another window, and a game's end.
const std::string kDurchAlleFenster = "do frmTessel.lblInfo Click\n"
                                      "key Esc\n"
                                      "do frmTessel.mnuInfo(4) Click\n"
                                      "set frmBeste.txtSpieler(0).Text Anna\n"
                                      "key Alt+A\n"
                                      "key J\n"
                                      "do frmTessel.lblNeu Click\n"
                                      "key Enter\nkey Enter\nkey Enter\nkey Enter\n"
                                      "board " +
                                      std::string(100, '1') + std::string(38, '0') +
                                      "34\n"
                                      "do frmTessel.imgFeld(10) MouseMove\n"
                                      "do frmTessel.imgFeld(10) MouseDown\n"
                                      "key Esc\n"
                                      "key J\n"
                                      "type Berta\n"
                                      "do frmBeste.cmdEnde Click\n"
                                      "key J\n";

TEST_F(DrehbuchTest, LineEndsOfOtherSystemsChangeNothing)
{
    std::string other;
    for (const char c : kDurchAlleFenster) {
        other += c == '\n' ? "\r\n" : std::string(1, c);
    }
    EXPECT_EQ(Spiele(other), Spiele(kDurchAlleFenster));
}

TEST_F(DrehbuchTest, SecondRunInOneProcessBeginsAfresh)
{
    const std::string first = Spiele(kDurchAlleFenster + "state\nwindows\n");
    fs::remove_all(folder_ / "daten" / "lindenspiele");
    EXPECT_EQ(Spiele(kDurchAlleFenster + "state\nwindows\n"), first);
}

TEST_F(DrehbuchTest, InputThatEndsAnywhereEndsTheProgramQuietly)
{
    const auto lines = Zeilen(kDurchAlleFenster);
    std::string script;
    for (std::size_t count = 0; count <= lines.size(); ++count) {
        const std::string transcript = Spiele(script);
        EXPECT_EQ(Wartezeilen(transcript), static_cast<std::ptrdiff_t>(count) + 1) << script;
        EXPECT_TRUE(LetzteZeile(transcript).starts_with("> ")) << transcript;
        script += count < lines.size() ? lines[count] + "\n" : "";
    }
}

TEST_F(DrehbuchTest, InputThatEndsInTheEntryWindowWritesNoEntry)
{
    Spiele(kDurchAlleFenster.substr(0, kDurchAlleFenster.find("do frmBeste.cmdEnde")));
    for (const auto& [name, bytes] : Dateien()) {
        EXPECT_EQ(bytes.find("Berta"), std::string::npos) << name;
        EXPECT_EQ(bytes.find("Spieler"), std::string::npos) << name;
    }
}

TEST_F(DrehbuchTest, InputThatEndsInAMessageOfTheStartMakesNoFile)
{
    Optionen options = Ordner();
    options.OhneWindowsordner = true;
    std::istringstream in;
    std::ostringstream out;
    Drehbuch(in, out, options).Spielen();
    EXPECT_EQ(LetzteZeile(out.str()), "> frmMsgOk");
    EXPECT_TRUE(Dateien().empty());
}

TEST_F(DrehbuchTest, NothingFollowsTheEnd)
{
    const std::string script = "do frmTessel.lblEnde Click\nkey J\n";
    EXPECT_EQ(LetzteZeile(Spiele(script)), "! end");
    EXPECT_EQ(Spiele(script + "windows\ndo frmTessel.lblNeu Click\n"), Spiele(script));
}

// Hands out one line at a time and looks, whenever the program asks for one, whether all that it
// has written before has been flushed.
class Leitung final : public std::streambuf
{
public:
    class Ablage final : public std::stringbuf
    {
    public:
        std::string Geschickt;

    protected:
        int sync() override
        {
            Geschickt = str();
            return 0;
        }
    };

    Leitung(std::vector<std::string> lines, const Ablage& out) : lines_(std::move(lines)), out_(out)
    {}

protected:
    int_type underflow() override
    {
        EXPECT_EQ(out_.Geschickt, out_.str());
        EXPECT_TRUE(LetzteZeile(out_.Geschickt).starts_with("> "));
        if (next_ == lines_.size()) {
            return traits_type::eof();
        }
        line_ = lines_[next_++] + "\n";
        setg(line_.data(), line_.data(), line_.data() + line_.size());
        return traits_type::to_int_type(line_.front());
    }

private:
    std::vector<std::string> lines_;
    const Ablage& out_;
    std::size_t next_ = 0;
    std::string line_;
};

TEST_F(DrehbuchTest, EachAnswerIsSentBeforeTheNextLineIsAwaited)
{
    Leitung::Ablage answers;
    Leitung lines(Zeilen(kDurchAlleFenster), answers);
    std::istream in(&lines);
    std::ostream out(&answers);
    Drehbuch(in, out, Ordner()).Spielen();
    EXPECT_EQ(Wartezeilen(answers.str()), std::ssize(Zeilen(kDurchAlleFenster)) + 1);
}

// Closes whatever an event may have opened; what cannot be reached is refused.
constexpr const char* kAufraeumen = "key Esc\nkey Esc\ndo frmBeste.cmdEnde Click\nkey Esc\n";
constexpr int kAufraeumZeilen = 4;

TEST_F(DrehbuchTest, EveryEventAtEveryControlIsAnswered)
{
    std::vector<std::string> names;
    const auto append = [&](const Window& window) {
        names.emplace_back(window.Name());
        for (const Control* const control : window.Controls()) {
            names.push_back(std::string(window.Name()) + "." + control->FullName());
        }
    };
    append(FrmTessel());
    append(FrmBeste());
    append(FrmMsgJa());
    for (int i = 1; i <= 140; i += 23) {
        names.push_back("frmTessel.imgFeld(" + std::to_string(i) + ")");
    }
    const std::vector<std::string> openers = {"", "do frmTessel.mnuInfo(4) Click\n",
                                              "do frmTessel.lblEnde Click\n"};
    for (const std::string& open : openers) {
        std::ostringstream script;
        script << "key Enter\n";
        std::ptrdiff_t commands = 1;
        for (const std::string& name : names) {
            for (const char* const event :
                 {"Click", "MouseMove", "MouseMove 1", "MouseDown", "MouseDown 2", "MouseUp",
                  "Timer", "Activate", "Close"}) {
                if (name == "frmMsgJa.lblJa") {
                    continue;  // the answer that ends the program
                }
                script << open << "do " << name << ' ' << event << '\n' << kAufraeumen;
                commands += 1 + (open.empty() ? 0 : 1) + kAufraeumZeilen;
            }
        }
        EXPECT_EQ(Wartezeilen(Spiele(script.str())), commands + 1) << open;
    }
}

TEST_F(DrehbuchTest, RubbishIsAnsweredAndHarmsNothing)
{
    const std::string million(1'000'000, 'x');
    const std::vector<std::string> lines = {
        million,
        "do " + million,
        "do frmTessel." + million + " Click",
        "get " + million + "." + million,
        "set frmTessel.Caption " + million,
        "type " + million,
        "board " + million,
        "do frmTessel.imgFeld(99999999999999999999) MouseMove",
        "get frmTessel.imgFeld(1).List(99999999999999999999)",
        "get ....",
        "get frmTessel.lblNeu.List()",
        "get frmTessel.lblNeu.List(",
        std::string("state\0", 6),
        std::string(7, '\0'),
        "\xFF\xFE\xFD",
        "get frmTessel.lblN\xC3",
        "type \xC0\x80\xED\xA0\x80",
        "\t",
        " ",
    };
    std::string script;
    for (const std::string& line : lines) {
        script += line + "\n";
    }
    const std::string transcript = Spiele(script + "get frmTessel.Caption\n");
    EXPECT_EQ(Wartezeilen(transcript), std::ssize(lines) + 2);
    EXPECT_TRUE(transcript.ends_with("= " + million + "\n> -\n"));
    EXPECT_TRUE(IstUtf8(transcript));
}

// Boards and cells that no game brings about, with pointer events and clicks all over them.
TEST_F(DrehbuchTest, ImpossibleValuesOnTheBoardEndNothing)
{
    std::string script = "key Enter\n";
    std::ptrdiff_t commands = 1;
    std::mt19937 dice(7);
    const std::vector<std::string> odd = {"7", "9", "", "x", "-1", "12345", "99999999999", "04"};
    for (int round = 0; round < 40; ++round) {
        std::string board;
        for (int i = 0; i < 140; ++i) {
            board += static_cast<char>('0' + dice() % 10);
        }
        const std::string cell = "frmTessel.imgFeld(" + std::to_string(1 + dice() % 140) + ")";
        script += "board " + board + "\n";
        script += "set " + cell + ".Tag " + odd[dice() % odd.size()] + "\n";
        script += "do " + cell + " MouseMove\n";
        script += "do " + cell + " MouseDown\n";
        script += "do frmTessel.Picture1 MouseMove\n";
        script += "pictures\nkey Esc\nkey Esc\nkey Enter\n";
        commands += 9;
    }
    EXPECT_EQ(Wartezeilen(Spiele(script)), commands + 1);
}

// Lines put together from the words of the language at random. Whatever they do, each is answered
// until the program ends.
TEST_F(DrehbuchTest, RandomLinesAreAnsweredUntilTheEnd)
{
    const std::vector<std::string> words = {"do",
                                            "key",
                                            "type",
                                            "get",
                                            "set",
                                            "board",
                                            "state",
                                            "windows",
                                            "pictures",
                                            "frmTessel",
                                            "frmBeste",
                                            "frmMsgOk",
                                            "frmMsgJa",
                                            "frmHintergrund",
                                            "frmBilder",
                                            ".",
                                            "lblNeu",
                                            "lblEnde",
                                            "imgFeld(9)",
                                            "imgFeld(131)",
                                            "mnuInfo(4)",
                                            "mnuTessel(2)",
                                            "txtSpieler(0)",
                                            "lstName",
                                            "cmdEnde",
                                            "lblTessel",
                                            "cmdSchalt(0)",
                                            "Timer1",
                                            "Click",
                                            "MouseMove",
                                            "MouseDown",
                                            "Close",
                                            "Activate",
                                            "Timer",
                                            "Visible",
                                            "Enabled",
                                            "Caption",
                                            "Text",
                                            "SelStart",
                                            "SelLength",
                                            "Left",
                                            "Interval",
                                            "List(2)",
                                            "True",
                                            "False",
                                            "0",
                                            "-1",
                                            "16777215",
                                            "1e38",
                                            "Esc",
                                            "J",
                                            "N",
                                            "Enter",
                                            "Tab",
                                            "Ctrl+",
                                            "Alt+",
                                            "Shift+",
                                            "E",
                                            "W",
                                            "A",
                                            "F1",
                                            "Ä",
                                            "\\r\\n"};
    std::mt19937 dice(11);
    for (int run = 0; run < 30; ++run) {
        std::string script;
        for (int i = 0; i < 300; ++i) {
            const std::string& command = words[dice() % 6];
            script += command + " " + words[9 + dice() % 6] + "." + words[16 + dice() % 12] +
                      (dice() % 2 == 0 ? "." : " ") + words[28 + dice() % (words.size() - 28)] +
                      " " + words[43 + dice() % (words.size() - 43)] + "\n";
            script += words[dice() % 3] + " " + words[49 + dice() % (words.size() - 49)] + "\n";
            script += "do " + words[9 + dice() % 6] + "." + words[16 + dice() % 12] + " " +
                      words[28 + dice() % 6] + "\n";
        }
        const std::string transcript = Spiele(script);
        const bool ended = LetzteZeile(transcript) == "! end";
        EXPECT_TRUE(ended || Wartezeilen(transcript) == 901) << run;
        EXPECT_TRUE(IstUtf8(transcript));
    }
}

TEST(Optionen, CommandLinesInAndOutOfOrder)
{
    struct Fall
    {
        std::vector<std::string> Argumente;
        bool Gueltig;
    };
    const std::vector<Fall> cases = {
        {{"--daten", "d", "--programm", "p"}, true},
        {{"--klanggeraete", "0", "--programm", "p", "--ohne-windowsordner", "--daten", "d"}, true},
        {{}, false},
        {{"--daten", "d"}, false},
        {{"--programm", "p"}, false},
        {{"--daten", "", "--programm", "p"}, false},
        {{"--daten", "d", "--programm"}, false},
        {{"--daten", "d", "--programm", "p", "--klanggeraete"}, false},
        {{"--daten", "d", "--programm", "p", "--klanggeraete", "zwei"}, false},
        {{"--daten", "d", "--programm", "p", "--klanggeraete", "-1"}, false},
        {{"--daten", "d", "--programm", "p", "--klanggeraete", "9999999999"}, false},
        {{"--daten", "d", "--programm", "p", "rest"}, false},
        {{"--daten", "d", "--programm", "p", "--was", "1"}, false},
    };
    for (const Fall& c : cases) {
        std::ostringstream fault;
        const auto options = OptionenAus(c.Argumente, fault);
        EXPECT_EQ(options.has_value(), c.Gueltig) << testing::PrintToString(c.Argumente);
        EXPECT_EQ(fault.str().empty(), c.Gueltig) << testing::PrintToString(c.Argumente);
    }
    std::ostringstream none;
    const auto options = OptionenAus(cases[1].Argumente, none);
    EXPECT_EQ(options->Daten, "d");
    EXPECT_EQ(options->Programm, "p");
    EXPECT_TRUE(options->OhneWindowsordner);
    EXPECT_EQ(options->Klanggeraete, 0);
    EXPECT_EQ(OptionenAus(cases[0].Argumente, none)->Klanggeraete, 1);
}

TEST(Texte, NumbersAreWrittenShortAndWithoutExponent)
{
    const std::vector<std::pair<Twips, std::string>> cases = {
        {8737.5F, "8737.5"},  {11460.0F, "11460"},     {0.0F, "0"},
        {-0.0F, "0"},         {-700.25F, "-700.25"},   {0.1F, "0.1"},
        {1e-7F, "0.0000001"}, {1234567.0F, "1234567"}, {16777216.0F, "16777216"},
    };
    for (const auto& [value, text] : cases) {
        EXPECT_EQ(TwipsText(value), text);
        EXPECT_EQ(TwipsAus(text), value);
    }
    for (const char* const text :
         {"", "nan", "inf", "-inf", "1e39", "1,5", " 1", "1 ", "+1", "0x1"}) {
        EXPECT_EQ(TwipsAus(text), std::nullopt) << text;
    }
}

TEST(Texte, MaskedTextsComeBack)
{
    for (const std::string text : {"", "a", "\r\nb\\r\n", "\\", "\\\\n", "Größe\n"}) {
        EXPECT_EQ(Entmaskiert(Maskiert(text)), text);
        EXPECT_EQ(Maskiert(text).find_first_of("\r\n"), std::string::npos);
    }
    EXPECT_EQ(Maskiert("\r\nC:\\x"), "\\r\\nC:\\\\x");
    EXPECT_EQ(Entmaskiert("\\x\\"), "\\x\\");
}

TEST(Texte, OnlyWellFormedUtf8IsTaken)
{
    for (const char* const good : {"", "abc", "äöü", "€", "😀", "\x7F", "\xEF\xBF\xBF"}) {
        EXPECT_TRUE(IstUtf8(good)) << good;
    }
    for (const char* const bad :
         {"\x80", "\xC3", "\xC0\x80", "\xC1\xBF", "\xE2\x82", "\xE0\x80\x80", "\xED\xA0\x80",
          "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "a\xC3z"}) {
        EXPECT_FALSE(IstUtf8(bad)) << bad;
    }
}

}  // namespace
}  // namespace malvone
