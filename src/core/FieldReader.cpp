#include "FieldReader.h"

#include "platform/FileSystem.h"

#include <algorithm>
#include <cstring>

namespace vistrel {

namespace {
bool isBlank(int c)
{
    return c == ' ' || c == '\t';
}
bool isLineEnd(int c)
{
    return c == '\r' || c == '\n';
}
bool endsPlainField(char c)
{
    return c == ',' || c == '\r' || c == '\n';
}
bool endsQuotedField(char c)
{
    return c == '"';
}
}  // namespace

FieldReader::~FieldReader()
{
    close();
}

bool FieldReader::open(const std::string& path)
{
    close();
    file_ = OpenFile(path, "rb");
    return file_ != nullptr;
}

void FieldReader::openText(std::string_view text)
{
    close();
    text_ = text;
    fromText_ = true;
}

void FieldReader::close()
{
    if (file_)
        std::fclose(file_);
    file_ = nullptr;
    text_ = {};
    fromText_ = false;
    afterComma_ = false;
    pos_ = len_ = passed_ = fieldStart_ = 0;
}

bool FieldReader::fill()
{
    passed_ += len_;
    pos_ = len_ = 0;
    if (file_) {
        len_ = std::fread(buffer_, 1, sizeof buffer_, file_);
    } else if (!text_.empty()) {
        len_ = std::min(text_.size(), sizeof buffer_);
        std::memcpy(buffer_, text_.data(), len_);
        text_.remove_prefix(len_);
    }
    return len_ > 0;
}

int FieldReader::peek()
{
    if (pos_ >= len_ && !fill())
        return EOF;
    return static_cast<unsigned char>(buffer_[pos_]);
}

bool FieldReader::atEnd()
{
    return peek() == EOF;
}

int FieldReader::skipToField()
{
    for (int c; (c = peek()) != EOF; ++pos_)
        if (!isBlank(c) && !(isLineEnd(c) && !afterComma_))
            return c;
    return EOF;
}

template <typename Stop>
void FieldReader::appendUntil(std::string* field, Stop isStop)
{
    while (peek() != EOF) {
        const char* const from = buffer_ + pos_;
        const char* const end = buffer_ + len_;
        const char* p = from;
        while (p != end && !isStop(*p))
            ++p;
        if (field)
            field->append(from, static_cast<size_t>(p - from));
        pos_ = static_cast<size_t>(p - buffer_);
        if (p != end)
            return;
    }
}

// A comma, or one line end (CR, LF or CR LF), when one stands next.
void FieldReader::takeDelimiter()
{
    const int c = peek();
    if (c == ',') {
        ++pos_;
        afterComma_ = true;
    } else if (isLineEnd(c)) {
        ++pos_;
        if (c == '\r' && peek() == '\n')
            ++pos_;
    }
}

std::string FieldReader::next()
{
    std::string field;
    const int c = skipToField();
    fieldStart_ = passed_ + pos_;
    afterComma_ = false;
    if (c == EOF)
        return field;
    if (isLineEnd(c)) {
        // An empty last field of its line: a line end stops skipToField
        // only straight after a comma.
        takeDelimiter();
        return field;
    }
    if (c == '"') {
        ++pos_;
        appendUntil(&field, endsQuotedField);
        if (peek() == '"')
            ++pos_;
        // Whatever stands between the closing quote and the delimiter is dropped.
        appendUntil(nullptr, endsPlainField);
        takeDelimiter();
        return field;
    }
    appendUntil(&field, endsPlainField);
    takeDelimiter();
    if (!field.empty() && isBlank(static_cast<unsigned char>(field.back()))) {
        size_t end = field.size();
        while (end > 0 && isBlank(static_cast<unsigned char>(field[end - 1])))
            --end;
        field.resize(end);
    }
    return field;
}

}  // namespace vistrel
