#include "SpecialConfigVals.h"

#include "GMSUtil.h"

#include <charconv>
#include <map>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace {
// Section and key, folded to lower case.
using Name = std::pair<std::string, std::string>;

// Made on first use: a host may fill it while its own statics are being built.
std::map<Name, std::string>& Table()
{
    static std::map<Name, std::string> table;
    return table;
}

// Letters A to Z only, so that names mean the same under every locale.
std::string Folded(std::string_view text)
{
    std::string folded(text);
    for (char& letter : folded)
    {
        if (letter >= 'A' && letter <= 'Z')
        {
            letter = static_cast<char>(letter - 'A' + 'a');
        }
    }
    return folded;
}

const std::string* Find(const char* section, const char* key)
{
    if (section == nullptr || key == nullptr)
    {
        return nullptr;
    }
    const auto found = Table().find(Name(Folded(section), Folded(key)));
    return found == Table().end() ? nullptr : &found->second;
}
} // namespace

void SetSpecialConfigVal(const char* section, const char* key, const char* value)
{
    if (section == nullptr || key == nullptr)
    {
        return;
    }
    Name name(Folded(section), Folded(key));
    if (value == nullptr)
    {
        Table().erase(name);
        return;
    }
    Table().insert_or_assign(std::move(name), value);
}

void SetSpecialConfigVal(const char* section, const char* key, int value)
{
    SetSpecialConfigVal(section, key, std::to_string(value).c_str());
}

void ClearSpecialConfigVals()
{
    Table().clear();
}

int GetSpecialConfigVal(const char* section, const char* key, int defaultValue)
{
    const std::string* text = Find(section, key);
    if (text == nullptr)
    {
        return defaultValue;
    }
    int value = 0;
    const char* end = text->data() + text->size();
    const auto [rest, error] = std::from_chars(text->data(), end, value);
    return error == std::errc() && rest == end ? value : defaultValue;
}

std::string GetSpecialConfigVal(const char* section, const char* key, const char* defaultValue)
{
    const std::string* text = Find(section, key);
    if (text != nullptr)
    {
        return *text;
    }
    return defaultValue == nullptr ? std::string() : std::string(defaultValue);
}
