#pragma once

#include "ScreenKeyboard.h"
#include "Settings.h"

#include <AppAccess.h>
#include <EFB.h>
#include <MappedImageList.h>

// The electronic-flight-bag side of the gallery. What is not overridden keeps its harmless default.
class GalleryEfb : public IEFB
{
public:
    explicit GalleryEfb(IAppAccess& host);
    ~GalleryEfb() override;

    const char* GetProviderName() override { return "Gallery flight bag"; }
    bool GetAvailableArea(int& x, int& y, int& width, int& height) override;
    bool IsModalDialogOpen() override { return m_modalDialogs > 0; }
    bool BeginModalDialog() override;
    bool EndModalDialog() override;
    void ShowVKB(bool show, VKB_SHOW_POS position, HWND window) override;

private:
    IAppAccess& m_host;
    int m_modalDialogs = 0;
    ScreenKeyboard m_keyboard;
};

// The services that the gallery offers to the library, as any host would.
class GalleryHost : public IAppAccess
{
public:
    GalleryHost();

    // The window whose client area is all that the library's windows may use; null for none. Not
    // owned, and taken back before it is destroyed.
    void SetWindow(const CWnd* window) { m_window = window; }

    // Where the configuration values come from and go to; before, there are none.
    void KeepSettingsIn(const CString& file) { m_settings.KeepIn(file); }
    // The display mode that the user chose last.
    APPMODE KeptMode();
    void KeepMode(APPMODE mode);

    const char* GetProviderName() override { return "Gallery"; }
    CString GetConfigVal(const char* section, const char* key, const char* fallback) override;
    int GetConfigVal(const char* section, const char* key, int fallback) override;
    void SetConfigVal(const char* section, const char* key, const char* value) override;
    void SetConfigVal(const char* section, const char* key, int value) override;
    bool GetAvailableArea(GAA_TYPE type, int& x, int& y, int& width, int& height) override;
    IEFB* GetEFB() override { return &m_efb; }
    void GetProductName(CString& name) override;
    // The application's icons at two sizes, known by the ids that they have as resources.
    const MappedImageList* GetMasterIconList() const override;
    const MappedImageList* GetMasterLargeIconList() const override;

private:
    const CWnd* m_window = nullptr;
    GalleryEfb m_efb;
    Settings m_settings;
    // Filled when first asked for.
    mutable MappedImageList m_icons;
    mutable MappedImageList m_largeIcons;
};
