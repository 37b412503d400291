// Field reading of the station's text files and the pool of file handles.

#include "FakePlatform.h"

#include "core/FieldReader.h"
#include "core/FileHandles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vistrel {
namespace {

using test::TempDir;
using test::readFile;
using test::writeFile;

// Every field of a file, read as the station reads: one field at a time
// until the reader says the file is at its end.
std::vector<std::string> fieldsOf(const std::string& path, size_t limit = 1000)
{
    FileHandles files;
    const int h = files.freeFile();
    std::vector<std::string> fields;
    if (!files.open(h, path, FileHandles::Mode::Input))
        return fields;
    bool atEnd = false;
    while (!atEnd && fields.size() < limit)
        fields.push_back(files.readField(h, atEnd));
    return fields;
}

struct FieldCase {
    const char* name;
    std::string bytes;
    std::vector<std::string> fields;
};

TEST(FieldReader, SplitsFieldsAsTheStationReadsThem)
{
    using namespace std::string_literals;
    const FieldCase cases[] = {
        {"commas and line ends", "a,b\r\nc\nd\re", {"a", "b", "c", "d", "e"}},
        {"last line closed", "a,b\r\n", {"a", "b"}},
        {"blanks around dropped", "  a  ,  b  , c d \r\n", {"a", "b", "c d"}},
        {"quoted keeps commas", "\"x, y\",z", {"x, y", "z"}},
        {"quoted keeps blanks", "\"  a  \",b", {"  a  ", "b"}},
        {"text after closing quote dropped", "\"ab\"cd,e", {"ab", "e"}},
        {"blanks before quote", "   \"a,b\"   ,c", {"a,b", "c"}},
        {"quoted then line end", "\"a\"\r\nb", {"a", "b"}},
        {"empty quoted", "\"\",x", {"", "x"}},
        {"quote inside a field is plain", "ab\"c,d", {"ab\"c", "d"}},
        {"leading comma", ",a", {"", "a"}},
        {"empty fields in the middle", "a,,b", {"a", "", "b"}},
        {"blank field in the middle", "a,   ,b", {"a", "", "b"}},
        {"a line of one comma", ",\r\n", {"", ""}},
        {"quoted up to the end", "1,\"abc\"", {"1", "abc"}},
        {"empty fields at a line end", "a,,\r\nb", {"a", "", "", "b"}},
        {"comma blank line end", "a, \r\nb", {"a", "", "b"}},
        {"comma LF then blank line", "a,\n\nb", {"a", "", "b"}},
        {"whole blank lines skipped", "a\r\n\r\n\r\nb", {"a", "b"}},
        {"line of blanks skipped", "a\r\n   \r\nb", {"a", "b"}},
        {"blank lines before the first field", "\r\n\r\na", {"a"}},
        {"blank line at the end", "a,b\r\n\r\n", {"a", "b", ""}},
        {"two blank lines at the end", "a,b\r\n\r\n\r\n", {"a", "b", ""}},
        {"comma at the very end", "a,", {"a"}},
        {"comma then the last line end", "a,\r\n", {"a", ""}},
        {"unterminated quote runs to the end", "\"abc,def\r\nghi", {"abc,def\r\nghi"}},
        {"NUL passes through", "a\0b,c"s, {"a\0b"s, "c"}},
        {"high bytes pass through", "\xff\xfe,\x80", {"\xff\xfe", "\x80"}},
        {"padded keyword", "NIKON RETINOMAX2                          ,1", {"NIKON RETINOMAX2", "1"}},
    };
    TempDir dir;
    for (const FieldCase& c : cases) {
        SCOPED_TRACE(c.name);
        const std::string path = dir.file("fields.txt");
        writeFile(path, c.bytes);
        EXPECT_EQ(fieldsOf(path), c.fields);
    }
}

TEST(FieldReader, EndOfFileAndOpenFailures)
{
    TempDir dir;
    FieldReader reader;
    EXPECT_FALSE(reader.open(dir.file("missing.txt")));
    EXPECT_FALSE(reader.isOpen());
    EXPECT_TRUE(reader.atEnd());
    EXPECT_EQ(reader.next(), "");

    writeFile(dir.file("empty.txt"), "");
    ASSERT_TRUE(reader.open(dir.file("empty.txt")));
    EXPECT_TRUE(reader.atEnd());
    EXPECT_EQ(reader.next(), "");
    EXPECT_EQ(reader.next(), "");

    // Reading on past the end keeps giving empty fields.
    writeFile(dir.file("one.txt"), "7\r\n");
    ASSERT_TRUE(reader.open(dir.file("one.txt")));
    EXPECT_FALSE(reader.atEnd());
    EXPECT_EQ(reader.next(), "7");
    EXPECT_TRUE(reader.atEnd());
    EXPECT_EQ(reader.next(), "");
    reader.close();
    EXPECT_FALSE(reader.isOpen());
}

TEST(FieldReader, FieldsAcrossTheReadBuffer)
{
    // Long fields and many short ones: nothing is lost or split where the
    // reader refills its buffer.
    TempDir dir;
    const std::string path = dir.file("big.txt");

    const std::string huge(5 * 1024 * 1024, 'x');
    writeFile(path, huge);
    std::vector<std::string> fields = fieldsOf(path);
    ASSERT_EQ(fields.size(), 1u);
    EXPECT_EQ(fields[0].size(), huge.size());

    std::string many;
    std::vector<std::string> expected;
    for (int i = 0; i < 30000; ++i) {
        expected.push_back(std::to_string(i));
        many += "  " + std::to_string(i) + (i % 7 == 0 ? "\r\n" : ",");
    }
    writeFile(path, many);
    EXPECT_EQ(fieldsOf(path, 40000), expected);

    // A CR LF pair torn apart by the buffer boundary is still one line end.
    const std::string head(65535, 'a');
    writeFile(path, head + "\r\nb");
    fields = fieldsOf(path);
    ASSERT_EQ(fields.size(), 2u);
    EXPECT_EQ(fields[0], head);
    EXPECT_EQ(fields[1], "b");
}

TEST(FileHandles, PoolOpenReadWriteClose)
{
    TempDir dir;
    FileHandles files;
    EXPECT_EQ(files.freeFile(), 1);
    EXPECT_FALSE(files.open(1, dir.file("missing.txt"), FileHandles::Mode::Input));
    EXPECT_FALSE(files.isOpen(1));
    EXPECT_EQ(files.freeFile(), 1);

    const std::string out = dir.file("out.txt");
    ASSERT_TRUE(files.open(1, out, FileHandles::Mode::Output));
    EXPECT_EQ(files.freeFile(), 2);
    EXPECT_TRUE(files.printLine(1, "a,b"));
    EXPECT_TRUE(files.printLine(1, ""));
    // The line is in the file at once, before the close.
    EXPECT_EQ(readFile(out), "a,b\r\n\r\n");
    files.close(1);
    EXPECT_FALSE(files.isOpen(1));
    EXPECT_FALSE(files.printLine(1, "late"));

    ASSERT_TRUE(files.open(2, out, FileHandles::Mode::Append));
    EXPECT_EQ(files.freeFile(), 1);
    EXPECT_TRUE(files.printLine(2, "c"));
    files.close(2);
    EXPECT_EQ(readFile(out), "a,b\r\n\r\nc\r\n");

    ASSERT_TRUE(files.open(3, out, FileHandles::Mode::Output));
    files.close(3);
    EXPECT_EQ(readFile(out), "");

    // Reading a handle that isn't open, or is open for output, is at its end.
    bool atEnd = false;
    EXPECT_EQ(files.readField(9, atEnd), "");
    EXPECT_TRUE(atEnd);
    ASSERT_TRUE(files.open(4, out, FileHandles::Mode::Append));
    atEnd = false;
    EXPECT_EQ(files.readField(4, atEnd), "");
    EXPECT_TRUE(atEnd);
    files.close(4);

    // Opening a handle in use closes what it held first.
    writeFile(dir.file("in1.txt"), "one");
    writeFile(dir.file("in2.txt"), "two");
    ASSERT_TRUE(files.open(5, dir.file("in1.txt"), FileHandles::Mode::Input));
    ASSERT_TRUE(files.open(5, dir.file("in2.txt"), FileHandles::Mode::Input));
    EXPECT_EQ(files.readField(5, atEnd), "two");
    EXPECT_TRUE(atEnd);
    files.close(5);
    files.close(5);  // twice is harmless
}

}  // namespace
}  // namespace vistrel
