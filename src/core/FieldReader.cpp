#include "FieldReader.h"

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
}  // namespace

FieldReader::~FieldReader()
{
    close();
}

bool FieldReader::open(const std::string& path)
{
    close();
    file_ = std::fopen(path.c_str(), "rb");
    pos_ = len_ = 0;
    afterComma_ = false;
    return file_ != nullptr;
}

void FieldReader::close()
{
    if (file_)
        std::fclose(file_);
    file_ = nullptr;
    pos_ = len_ = 0;
}

bool FieldReader::fill()
{
    if (!file_)
        return false;
    len_ = std::fread(buffer_, 1, sizeof buffer_, file_);
    pos_ = 0;
    return len_ > 0;
}

int FieldReader::peek()
{
    if (pos_ >= len_ && !fill())
        return EOF;
    return static_cast<unsigned char>(buffer_[pos_]);
}

int FieldReader::get()
{
    const int c = peek();
    if (c != EOF)
        ++pos_;
    return c;
}

bool FieldReader::atEnd()
{
    return peek() == EOF;
}

std::string FieldReader::next()
{
    std::string field;
    int c = peek();
    while (c != EOF && (isBlank(c) || (isLineEnd(c) && !afterComma_))) {
        get();
        c = peek();
    }
    afterComma_ = false;
    if (c == EOF)
        return field;
    if (isLineEnd(c)) {
        // An empty last field of its line.
        get();
        if (c == '\r' && peek() == '\n')
            get();
        return field;
    }

    bool quoted = false;
    if (c == '"') {
        quoted = true;
        get();
        while ((c = get()) != EOF && c != '"')
            field.push_back(static_cast<char>(c));
        // Whatever stands between the closing quote and the delimiter is dropped.
        while ((c = peek()) != EOF && c != ',' && !isLineEnd(c))
            get();
    } else {
        while ((c = peek()) != EOF && c != ',' && !isLineEnd(c)) {
            field.push_back(static_cast<char>(c));
            get();
        }
    }
    // Consume the delimiter: a comma, or one line end (CR, LF or CR LF).
    c = peek();
    if (c == ',') {
        get();
        afterComma_ = true;
    } else if (c == '\r') {
        get();
        if (peek() == '\n')
            get();
    } else if (c == '\n') {
        get();
    }
    if (!quoted) {
        size_t end = field.size();
        while (end > 0 && isBlank(static_cast<unsigned char>(field[end - 1])))
            --end;
        field.resize(end);
    }
    return field;
}

}  // namespace vistrel
