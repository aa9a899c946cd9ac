#include "dialogs/TemplateFormat.h"

#include <algorithm>
#include <cstring>

namespace dialogs {

namespace {

constexpr DWORD ExtendedSignature = 0xFFFF0001; // version 1
constexpr WORD AnySignature = 0xFFFF;           // in the second word
constexpr WORD OrdinalMark = 0xFFFF;
constexpr size_t Alignment = sizeof(DWORD);

// Where the fields that are read and changed stand, from the start of the header or of a control.
struct Offsets
{
    size_t headerStyle;
    size_t headerExStyle;
    size_t count; // of controls; the place follows
    size_t headerSize;
    size_t controlPlace; // the id follows
    size_t controlSize;
};
constexpr Offsets Plain = {0, 4, 8, 18, 8, 18};
constexpr Offsets Extended = {12, 8, 16, 26, 12, 24};

const Offsets& OffsetsOf(bool extended)
{
    return extended ? Extended : Plain;
}

constexpr size_t Aligned(size_t position)
{
    return (position + Alignment - 1) / Alignment * Alignment;
}

// Goes through bytes; once it would pass their end it has failed and reads zeros.
class Reader
{
public:
    Reader(Bytes bytes, size_t position)
        : m_bytes(bytes)
        , m_position(position)
    {}

    bool Failed() const { return m_failed; }
    size_t Position() const { return m_position; }

    template <class Value> Value Read()
    {
        Value value = {};
        const size_t from = m_position;
        if (Skip(sizeof(value)))
        {
            std::memcpy(&value, m_bytes.data() + from, sizeof(value));
        }
        return value;
    }
    bool Skip(size_t count)
    {
        m_failed = m_failed || m_position > m_bytes.size() || count > m_bytes.size() - m_position;
        m_position += m_failed ? 0 : count;
        return !m_failed;
    }
    std::u16string ReadText()
    {
        std::u16string text;
        for (char16_t letter = Read<char16_t>(); letter != 0; letter = Read<char16_t>())
        {
            text += letter;
        }
        return text;
    }
    // A text, an ordinal, or nothing; whether there was something.
    bool SkipName()
    {
        const WORD first = Read<WORD>();
        if (first == OrdinalMark)
        {
            Skip(sizeof(WORD));
        }
        else if (first != 0)
        {
            ReadText();
        }
        return first != 0;
    }

private:
    Bytes m_bytes;
    size_t m_position;
    bool m_failed = false;
};

TemplateFont ReadFont(Reader& reader, bool extended)
{
    TemplateFont font;
    font.points = reader.Read<WORD>();
    if (font.points == TemplateFont::MessageFont)
    {
        return font;
    }
    if (extended)
    {
        font.weight = reader.Read<WORD>();
        font.italic = reader.Read<BYTE>();
        font.charSet = reader.Read<BYTE>();
    }
    font.face = reader.ReadText();
    return font;
}

class Writer
{
public:
    std::vector<std::byte> bytes;

    void Append(Bytes more) { bytes.insert(bytes.end(), more.begin(), more.end()); }
    template <class Value> void Append(const Value& value)
    {
        Append(std::as_bytes(std::span(&value, 1)));
    }
    template <class Value> void Set(size_t position, const Value& value)
    {
        std::memcpy(bytes.data() + position, &value, sizeof(value));
    }
    void Align() { bytes.resize(Aligned(bytes.size())); }
    void AppendFont(const TemplateFont& font, bool extended)
    {
        Append(font.points);
        if (font.points == TemplateFont::MessageFont)
        {
            return;
        }
        if (extended)
        {
            Append(font.weight);
            Append(font.italic);
            Append(font.charSet);
        }
        Append(std::as_bytes(std::span(font.face.c_str(), font.face.size() + 1)));
    }
};

} // namespace

std::optional<TemplateLayout> ReadTemplate(Bytes bytes)
{
    TemplateLayout layout;
    const DWORD signature = Reader(bytes, 0).Read<DWORD>();
    layout.extended = signature == ExtendedSignature;
    if (!layout.extended && HIWORD(signature) == AnySignature)
    {
        return std::nullopt; // a version that nobody knows
    }
    const Offsets& at = OffsetsOf(layout.extended);
    layout.style = Reader(bytes, at.headerStyle).Read<DWORD>();
    layout.exStyle = Reader(bytes, at.headerExStyle).Read<DWORD>();
    Reader reader(bytes, at.count);
    const WORD count = reader.Read<WORD>();
    layout.place = reader.Read<TemplatePlace>();
    reader.SkipName(); // the menu
    reader.SkipName(); // the class
    reader.ReadText(); // the title
    layout.fontBegin = reader.Position();
    if ((layout.style & DS_SETFONT) != 0)
    {
        layout.font = ReadFont(reader, layout.extended);
    }
    for (WORD index = 0; index < count && !reader.Failed(); ++index)
    {
        TemplateControl control;
        control.begin = Aligned(reader.Position());
        reader = Reader(bytes, control.begin);
        reader.Skip(at.controlPlace);
        control.place = reader.Read<TemplatePlace>();
        control.id = layout.extended ? reader.Read<DWORD>() : reader.Read<WORD>();
        reader.SkipName();                // the class
        reader.SkipName();                // the text
        reader.Skip(reader.Read<WORD>()); // creation data
        control.end = reader.Position();
        layout.controls.push_back(control);
    }
    return reader.Failed() ? std::nullopt : std::optional(layout);
}

std::vector<std::byte> WriteTemplate(Bytes bytes, const TemplateLayout& layout)
{
    const Offsets& at = OffsetsOf(layout.extended);
    Writer writer;
    writer.Append(bytes.first(layout.fontBegin));
    writer.Set(at.headerStyle, layout.style);
    writer.Set(at.count + sizeof(WORD), layout.place);
    if (layout.font)
    {
        writer.AppendFont(*layout.font, layout.extended);
    }
    for (const TemplateControl& control : layout.controls)
    {
        writer.Align();
        const size_t begin = writer.bytes.size();
        writer.Append(bytes.subspan(control.begin, control.end - control.begin));
        writer.Set(begin + at.controlPlace, control.place);
    }
    writer.Align();
    return writer.bytes;
}

std::vector<std::byte> EmptyTemplate(const std::optional<TemplateFont>& font)
{
    Writer writer;
    writer.bytes.resize(Extended.headerSize);
    writer.Set(0, ExtendedSignature);
    writer.Set(Extended.headerStyle, DWORD(WS_POPUP | (font ? DS_SETFONT : 0)));
    for (int name = 0; name < 3; ++name) // menu, class, title
    {
        writer.Append(WORD(0));
    }
    if (font)
    {
        writer.AppendFont(*font, true);
    }
    writer.Align();
    return writer.bytes;
}

} // namespace dialogs
