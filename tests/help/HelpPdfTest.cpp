// The help documents as built: the PDF maker turns Markdown into a valid PDF
// of as many pages as the text needs and refuses what it can't use, and
// every document the station opens was built beside the window program from
// a source of its own.

#include "core/HelpDocuments.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

#include <unistd.h>

namespace vistrel {
namespace {

namespace fs = std::filesystem;

std::string readBytes(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

struct PdfFacts {
    bool header = false;  // starts with %PDF-
    bool trailer = false;  // ends with %%EOF
    int pages = 0;         // page objects
    int count = -1;        // what the page tree says
    bool fonts = false;    // a font is embedded: there is text
};

PdfFacts inspect(const std::string& bytes)
{
    PdfFacts f;
    f.header = bytes.rfind("%PDF-", 0) == 0;
    const size_t eof = bytes.rfind("%%EOF");
    f.trailer = eof != std::string::npos && bytes.size() - eof <= 8;
    static const std::regex page(R"(/Type\s*/Page(?!s))");
    f.pages = static_cast<int>(std::distance(std::sregex_iterator(bytes.begin(), bytes.end(), page),
        std::sregex_iterator()));
    static const std::regex count(R"(/Type\s*/Pages[^>]*?/Count\s+(\d+))");
    std::smatch m;
    if (std::regex_search(bytes, m, count))
        f.count = std::stoi(m[1]);
    f.fonts = bytes.find("/FontFile") != std::string::npos;
    return f;
}

class Workspace {
public:
    Workspace()
    {
        path_ = fs::temp_directory_path() / ("vistrel-helpgen-" + std::to_string(::getpid()));
        fs::remove_all(path_);
        fs::create_directories(path_);
    }
    ~Workspace()
    {
        std::error_code ec;
        fs::remove_all(path_, ec);
    }
    fs::path file(const std::string& name, const std::string& text = {}) const
    {
        const fs::path p = path_ / name;
        if (!text.empty())
            std::ofstream(p, std::ios::binary) << text;
        return p;
    }

private:
    fs::path path_;
};

// Runs the PDF maker; its exit status.
int helpgen(const std::string& arguments)
{
    const std::string command = "QT_QPA_PLATFORM=offscreen '" VISTREL_HELPGEN "' " + arguments + " 2>/dev/null";
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string quoted(const fs::path& p)
{
    return "'" + p.string() + "'";
}

// ---- The PDF maker ----

TEST(HelpGenerator, MakesAValidPdfOfOnePageFromAShortText)
{
    Workspace w;
    const fs::path source = w.file("short.md",
        "# A short guide\n\nSome *plain* words, a `file.txt` and a list:\n\n- one\n- two\n\n"
        "| Key | Does |\n| --- | --- |\n| A | this |\n| B | that |\n");
    const fs::path pdf = w.file("short.pdf");

    ASSERT_EQ(helpgen(quoted(source) + " " + quoted(pdf)), 0);

    const PdfFacts f = inspect(readBytes(pdf));
    EXPECT_TRUE(f.header);
    EXPECT_TRUE(f.trailer);
    EXPECT_EQ(f.pages, 1);
    EXPECT_EQ(f.count, 1);
    EXPECT_TRUE(f.fonts);
}

TEST(HelpGenerator, ALongTextRunsOnOverSeveralPages)
{
    Workspace w;
    std::string text = "# A long guide\n\n";
    for (int i = 1; i <= 120; ++i)
        text += "Paragraph " + std::to_string(i) + " tells the volunteer one more thing to know.\n\n";
    const fs::path source = w.file("long.md", text);
    const fs::path pdf = w.file("long.pdf");

    ASSERT_EQ(helpgen("--footer 'Vistrel help' " + quoted(source) + " " + quoted(pdf)), 0);

    const PdfFacts f = inspect(readBytes(pdf));
    EXPECT_GE(f.pages, 3);
    EXPECT_EQ(f.count, f.pages);
}

TEST(HelpGenerator, RefusesWhatItCannotUseAndLeavesNoPdfBehind)
{
    Workspace w;
    const fs::path pdf = w.file("out.pdf");
    EXPECT_EQ(helpgen(quoted(w.file("missing.md")) + " " + quoted(pdf)), 1);
    EXPECT_FALSE(fs::exists(pdf));
    EXPECT_EQ(helpgen(quoted(w.file("empty.md", "\n  \n")) + " " + quoted(pdf)), 1);
    EXPECT_FALSE(fs::exists(pdf));
    const fs::path source = w.file("ok.md", "# Fine\n");
    EXPECT_EQ(helpgen(quoted(source) + " " + quoted(w.file("no-such-folder/out.pdf"))), 1);
    EXPECT_EQ(helpgen(quoted(source)), 2);
    EXPECT_EQ(helpgen("--pages 3 " + quoted(source) + " " + quoted(pdf)), 2);
}

// ---- The documents the station opens ----

TEST(HelpDocumentsBuilt, EveryDocumentTheStationOpensStandsBesideTheWindowProgram)
{
    for (const HelpDocument& d : HelpDocuments()) {
        SCOPED_TRACE(d.file);
        const fs::path pdf = fs::path(VISTREL_HELP_PROGRAM_DIR) / d.file;
        ASSERT_TRUE(fs::is_regular_file(pdf));
        const PdfFacts f = inspect(readBytes(pdf));
        EXPECT_TRUE(f.header);
        EXPECT_TRUE(f.trailer);
        EXPECT_GE(f.pages, 1);
        EXPECT_EQ(f.count, f.pages);
        EXPECT_TRUE(f.fonts);
    }
}

TEST(HelpDocumentsBuilt, EverySourceIsADocumentOfTheStationAndEveryDocumentHasASource)
{
    std::set<std::string> sources;
    for (const fs::directory_entry& e : fs::directory_iterator(VISTREL_HELP_SOURCE_DIR))
        if (e.path().extension() == ".md")
            sources.insert(e.path().stem().string() + ".pdf");
    std::set<std::string> documents;
    for (const HelpDocument& d : HelpDocuments())
        documents.insert(d.file);
    EXPECT_EQ(sources, documents);
}

}  // namespace
}  // namespace vistrel
