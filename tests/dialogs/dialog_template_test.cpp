#include "CustomDialogTemplate.h"
#include "dialogs/dialog_for_tests.h"

#include <cstring>

namespace {

constexpr WORD ButtonClass = 0x0080;
constexpr WORD EditClass = 0x0081;
constexpr WORD StaticClass = 0x0082;

// Fields of templates in all the ways that the formats allow.
std::vector<DialogTemplate> AllKinds()
{
    std::vector<DialogTemplate> kinds;
    for (const bool extended : {false, true})
    {
        constexpr DWORD Style = WS_POPUP | WS_CAPTION | WS_SYSMENU;
        const DialogTemplate::Header headers[] = {
            {.extended = extended,
             .style = Style | WS_THICKFRAME,
             .menu = WORD(77),
             .windowClass = WORD(0x8002), // the platform's dialog class
             .points = 0},
            {.extended = extended, .points = 14, .face = "Arial"},
            {.extended = extended,
             .style = Style | DS_FIXEDSYS | DS_MODALFRAME,
             .face = "MS Shell Dlg"},
            {.extended = extended, .style = WS_POPUP, .windowClass = "#32770", .title = ""},
        };
        for (const DialogTemplate::Header& header : headers)
        {
            DialogTemplate bytes(header);
            bytes.Add(ButtonClass, "Odd", WS_TABSTOP, CRect(7, 9, 50, 23), 101)
                .Add(EditClass, "", WS_BORDER, CRect(7, 30, 103, 43), 102, {0x1234, 0x5678, 0x9ABC})
                .Add("ListBox", "", LBS_NOINTEGRALHEIGHT, CRect(110, 3, 193, 63), 103)
                .Add(StaticClass, "A label", 0, CRect(7, 50, 60, 58), 0xFFFF)
                .Add("SysListView32", "", LVS_REPORT, CRect(1, 70, 199, 119), 104);
            kinds.push_back(bytes);
        }
    }
    return kinds;
}

using DialogTemplateTest = CustomDialogTest;

TEST_F(DialogTemplateTest, ChildrenEndWhereTheRuleTakesThemWhateverTheTemplate)
{
    for (const DialogTemplate& bytes : AllKinds())
    {
        std::vector<CRect> expected;
        CSize wanted;
        {
            DialogForTests standard(bytes, Host());
            expected = Enlarged(ChildPlaces(standard));
            wanted = Enlarged(ClientRectOf(standard)).Size();
        }
        const ModeScope mode(ONBOARD);
        DialogForTests dialog(bytes, Host());
        EXPECT_EQ(ChildPlaces(dialog), expected) << bytes.Size();
        const CRect room = ClientRectOf(dialog);
        for (const CRect& place : expected)
        {
            EXPECT_TRUE(place.right <= room.right && place.bottom <= room.bottom);
        }
        // No smaller than the factor makes it, and larger by less than a dialog unit.
        const CSize spare = room.Size() - wanted;
        EXPECT_TRUE(spare.cx >= 0 && spare.cx < 4 && spare.cy >= 0 && spare.cy < 4);
        LOGFONT font = {};
        dialog.GetFont()->GetLogFont(&font);
        EXPECT_STREQ(font.lfFaceName, "Arial");
        EXPECT_EQ(dialog.GetDlgItem(101)->GetFont(), &CCustomDialog::m_OBStaticTextFont);
    }
}

TEST_F(DialogTemplateTest, OpeningOnBoardAndSwitchingThereAgree)
{
    DialogTemplate bytes(DialogTemplate::Header{});
    bytes
        .Add("ListBox", "", WS_VSCROLL, CRect(5, 5, 60, 62), 101) // whole rows only
        .Add("ComboBox", "", CBS_DROPDOWNLIST, CRect(70, 5, 130, 80), 102)
        .Add(ButtonClass, "OK", 0, CRect(0, 0, 1, 1), 103)
        .Add(StaticClass, "", 0, CRect(-9, -5, 3000, 0), 104)
        // These choose their size, and some their place.
        .Add(StaticClass, "#10017", SS_BITMAP, CRect(7, 60, 60, 90), 105)
        .Add(StaticClass, "#10017", SS_BITMAP | SS_CENTERIMAGE, CRect(7, 60, 60, 90), 106)
        .Add(StaticClass, "", SS_ETCHEDHORZ, CRect(7, 92, 67, 103), 107)
        .Add(StaticClass, "", SS_ETCHEDVERT, CRect(7, 92, 17, 103), 108)
        .Add("Edit", "", 0, CRect(7, 105, 67, 119), 109)
        .Add(UPDOWN_CLASS, "", UDS_AUTOBUDDY | UDS_ALIGNRIGHT, CRect(90, 7, 101, 20), 110)
        .Add("Edit", "", 0, CRect(77, 105, 137, 119), 111)
        .Add(UPDOWN_CLASS, "", UDS_AUTOBUDDY, CRect(140, 105, 151, 119), 112);
    DialogForTests switched(bytes, Host());
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    DialogForTests opened(bytes, Host());
    std::vector<CRect> expected = ChildPlaces(switched);
    const std::vector<CRect> actual = ChildPlaces(opened);
    // A closed combo is as high as its font, which a change of mode leaves to its owner.
    expected[1].bottom = actual[1].bottom;
    EXPECT_EQ(actual, expected);
}

// A copy that ends where the memory does, so that a byte too far is a fault. The next one takes its
// place.
BYTE* Guarded(const void* bytes, size_t size)
{
    constexpr size_t Page = 0x1000;
    static void* const pages = ::VirtualAlloc(nullptr, 2 * Page, MEM_RESERVE, PAGE_NOACCESS);
    static const auto first =
        static_cast<BYTE*>(::VirtualAlloc(pages, Page, MEM_COMMIT, PAGE_READWRITE));
    return static_cast<BYTE*>(std::memcpy(first + Page - size, bytes, size));
}

TEST_F(DialogTemplateTest, TruncatedTemplatesAreRefusedAndDamagedOnesDoNoHarm)
{
    size_t kind = 0;
    for (const DialogTemplate& bytes : AllKinds())
    {
        ++kind;
        for (size_t at = 0; at < bytes.Size(); ++at)
        {
            CCustomDialogTemplate loaded;
            const BYTE* const begin = Guarded(bytes.Data(), at);
            EXPECT_FALSE(loaded.Load(begin, at)) << at;
            EXPECT_FALSE(loaded.Load(reinterpret_cast<LPCDLGTEMPLATE>(begin)));
            EXPECT_FALSE(loaded.IsLoaded());
            for (const BYTE value : {BYTE(0), BYTE(0xFF)})
            {
                BYTE* const copy = Guarded(bytes.Data(), bytes.Size());
                copy[at] = value;
                const BOOL sound = loaded.Load(copy, bytes.Size());
                // Asking the platform for fonts takes its time, so not for every byte. A font that
                // cannot be had leaves the template as it was.
                if (at % 7 == kind % 7)
                {
                    loaded.ChangeTemplateForOB();
                }
                EXPECT_EQ(loaded.Lock() != nullptr, sound != FALSE) << at;
                loaded.Unlock();
            }
        }
    }
    DialogTemplate future({.extended = true});
    BYTE* const copy = Guarded(future.Data(), future.Size());
    copy[0] = 2;
    EXPECT_FALSE(CCustomDialogTemplate().Load(copy, future.Size())) << "an unknown version";
}

} // namespace
