#pragma once

#include "framework/CmdTarget.h"
#include "framework/DeviceContext.h"
#include "framework/Gdi.h"
#include "framework/Geometry.h"
#include "framework/String.h"

class CDataExchange;
class CDocument;
class CFrameWnd;
class CMenu;
class CScrollBar;
class CView;

namespace framework {
class AccessibleWindow;
}

// What a frame tells a view that it creates.
struct CCreateContext
{
    CRuntimeClass* m_pNewViewClass = nullptr;
    CDocument* m_pCurrentDoc = nullptr;
    CFrameWnd* m_pCurrentFrame = nullptr;
};

constexpr UINT AFX_IDW_PANE_FIRST = 0xE900;
constexpr UINT AFX_IDW_PANE_LAST = 0xE9FF;

// RunModalLoop: do not tell the owner that there is nothing left to do (WM_ENTERIDLE), nor the
// window (WM_KICKIDLE, whose parameters and result mean nothing); show the window then.
constexpr DWORD MLF_NOIDLEMSG = 0x0001;
constexpr DWORD MLF_NOKICKIDLE = 0x0002;
constexpr DWORD MLF_SHOWONIDLE = 0x0004;
constexpr UINT WM_KICKIDLE = WM_AFXFIRST + 0x10;

// To the children of a frame when there is nothing left to do: ask how your commands stand, and
// disable (wParam) those that nobody handles.
constexpr UINT WM_IDLEUPDATECMDUI = WM_AFXFIRST + 0x11;
// To the windows in a frame that has been made: show your document for the first time.
constexpr UINT WM_INITIALUPDATE = WM_AFXFIRST + 0x12;

// A window of the platform. An object made by Create, Attach or SubclassWindow stands permanently
// for its handle; FromHandle makes temporary stand-ins that own nothing and last until the thread
// is idle: a modal loop leaves those that were found outside it. Destroying the object destroys the
// window; destroying the window leaves the object, unless its PostNcDestroy deletes it.
class FRAMEWORK_API CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)

public:
    CWnd() = default;
    ~CWnd() override;

    HWND m_hWnd = nullptr;
    HWND GetSafeHwnd() const { return framework::SafeHandle(this, &CWnd::m_hWnd); }
    operator HWND() const { return m_hWnd; }
    bool operator==(const CWnd& other) const { return m_hWnd == other.m_hWnd; }

    // Handles and objects. FromHandle gives null only for null; FromHandlePermanent gives null
    // unless an object was attached.
    static CWnd* PASCAL FromHandle(HWND window);
    static CWnd* PASCAL FromHandlePermanent(HWND window);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HWND window);
    HWND Detach();
    // Binds the object to a window that exists and puts its message map before the window's own
    // procedure. FALSE when the window or the object already has a partner.
    BOOL SubclassWindow(HWND window);
    BOOL SubclassDlgItem(UINT id, CWnd* parent);
    // Gives the procedure back if this object's is still on top, and lets go of the window.
    HWND UnsubclassWindow();
    // Last chance before the first message of a window that is created or subclassed.
    virtual void PreSubclassWindow() {}

    // Creation and destruction. An object has one window at a time: asked for another, it declines,
    // and nothing changes.
    virtual BOOL Create(LPCSTR className, LPCSTR windowName, DWORD style, const RECT& rect,
                        CWnd* parent, UINT id, CCreateContext* context = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y,
                  int width, int height, HWND parent, HMENU idOrMenu, LPVOID param = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCSTR className, LPCSTR windowName, DWORD style, const RECT& rect,
                  CWnd* parent, UINT id, LPVOID param = nullptr);
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL DestroyWindow();

    // State
    DWORD GetStyle() const { return DWORD(::GetWindowLongPtr(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return DWORD(::GetWindowLongPtr(m_hWnd, GWL_EXSTYLE)); }
    // Changes style bits; flags other than 0 apply them with SetWindowPos and these flags.
    // FALSE when nothing changed.
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT flags = 0);
    BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT flags = 0);
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    int SetDlgCtrlID(int id) { return int(::SetWindowLongPtr(m_hWnd, GWLP_ID, id)); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL EnableWindow(BOOL enable = TRUE) { return ::EnableWindow(m_hWnd, enable); }
    BOOL ShowWindow(int command) { return ::ShowWindow(m_hWnd, command); }
    BOOL FlashWindow(BOOL invert) { return ::FlashWindow(m_hWnd, invert); }
    void DragAcceptFiles(BOOL accept = TRUE) { ::DragAcceptFiles(m_hWnd, accept); }
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }

    // Messages
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessage(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::PostMessage(m_hWnd, message, wParam, lParam);
    }
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0,
                                  BOOL deep = TRUE, BOOL onlyPermanent = FALSE);
    // Reflects the message in progress to this child; TRUE when the child handled it.
    BOOL SendChildNotifyLastMsg(LRESULT* result = nullptr);
    static const MSG* PASCAL GetCurrentMessage();

    // Text and font
    void SetWindowText(LPCSTR text) { ::SetWindowText(m_hWnd, text); }
    int GetWindowText(LPSTR buffer, int size) const
    {
        return ::GetWindowText(m_hWnd, buffer, size);
    }
    void GetWindowText(CString& text) const;
    int GetWindowTextLength() const { return ::GetWindowTextLength(m_hWnd); }
    // Gives the icon back that was there.
    HICON SetIcon(HICON icon, BOOL big)
    {
        return reinterpret_cast<HICON>(
            SendMessage(WM_SETICON, WPARAM(big), reinterpret_cast<LPARAM>(icon)));
    }
    HICON GetIcon(BOOL big) const
    {
        return reinterpret_cast<HICON>(SendMessage(WM_GETICON, WPARAM(big)));
    }
    // A menu that is given to the window is its own.
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* menu);
    void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
    // revert: the platform's own comes back, and the result is null.
    CMenu* GetSystemMenu(BOOL revert) const;
    void SetFont(CFont* font, BOOL redraw = TRUE);
    CFont* GetFont() const;

    // Place and size
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE)
    {
        ::MoveWindow(m_hWnd, x, y, width, height, repaint);
    }
    void MoveWindow(LPCRECT r, BOOL repaint = TRUE)
    {
        MoveWindow(r->left, r->top, r->right - r->left, r->bottom - r->top, repaint);
    }
    // Where SetWindowPos puts a window that is not put after another one.
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;
    BOOL SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags);
    // A child in its parent; another window over its owner or, where that is not to be seen or is
    // the desktop, on the screen, and always on one screen as a whole if it has the room.
    void CenterWindow(CWnd* alternateOwner = nullptr);
    BOOL GetWindowPlacement(WINDOWPLACEMENT* placement) const
    {
        placement->length = sizeof(*placement);
        return ::GetWindowPlacement(m_hWnd, placement);
    }
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* placement)
    {
        return ::SetWindowPlacement(m_hWnd, placement);
    }
    // The window takes over the region.
    int SetWindowRgn(HRGN region, BOOL redraw) { return ::SetWindowRgn(m_hWnd, region, redraw); }
    void BringWindowToTop() { ::BringWindowToTop(m_hWnd); }
    void GetWindowRect(LPRECT rect) const { ::GetWindowRect(m_hWnd, rect); }
    void GetClientRect(LPRECT rect) const { ::GetClientRect(m_hWnd, rect); }
    void ClientToScreen(LPPOINT point) const { ::ClientToScreen(m_hWnd, point); }
    void ClientToScreen(LPRECT rect) const;
    void ScreenToClient(LPPOINT point) const { ::ScreenToClient(m_hWnd, point); }
    void ScreenToClient(LPRECT rect) const;
    void MapWindowPoints(CWnd* to, LPPOINT points, UINT count) const;
    void MapWindowPoints(CWnd* to, LPRECT rect) const;
    virtual void CalcWindowRect(LPRECT clientRect, UINT adjustType = 0);

    // Painting
    CDC* GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
    CDC* GetWindowDC() { return CDC::FromHandle(::GetWindowDC(m_hWnd)); }
    int ReleaseDC(CDC* dc);
    CDC* BeginPaint(LPPAINTSTRUCT paint) { return CDC::FromHandle(::BeginPaint(m_hWnd, paint)); }
    void EndPaint(LPPAINTSTRUCT paint) { ::EndPaint(m_hWnd, paint); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    void SetRedraw(BOOL redraw = TRUE) { SendMessage(WM_SETREDRAW, WPARAM(redraw)); }
    void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
    void InvalidateRect(LPCRECT r, BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, r, erase); }
    void InvalidateRgn(CRgn* region, BOOL erase = TRUE);
    void ValidateRect(LPCRECT r) { ::ValidateRect(m_hWnd, r); }
    void ValidateRgn(CRgn* region);
    // Nothing of one window at a time is painted on the screen.
    BOOL LockWindowUpdate() { return ::LockWindowUpdate(m_hWnd); }
    void UnlockWindowUpdate() { ::LockWindowUpdate(nullptr); }
    BOOL GetUpdateRect(LPRECT r, BOOL erase = FALSE) { return ::GetUpdateRect(m_hWnd, r, erase); }
    BOOL RedrawWindow(LPCRECT rect = nullptr, CRgn* region = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);

    // Timers
    UINT_PTR SetTimer(UINT_PTR id, UINT elapse, TIMERPROC proc)
    {
        return ::SetTimer(m_hWnd, id, elapse, proc);
    }
    BOOL KillTimer(UINT_PTR id) { return ::KillTimer(m_hWnd, id); }

    // Focus, activation, capture
    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* PASCAL GetCapture() { return FromHandle(::GetCapture()); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* PASCAL GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    static CWnd* PASCAL GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
    BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }

    // Family
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* SetParent(CWnd* parent);
    // The parent of a window that has no owner.
    CWnd* GetOwner() const
    {
        const HWND owner = ::GetWindow(m_hWnd, GW_OWNER);
        return FromHandle(owner != nullptr ? owner : ::GetParent(m_hWnd));
    }
    CWnd* GetTopLevelParent() const { return FromHandle(::GetAncestor(m_hWnd, GA_ROOTOWNER)); }
    CFrameWnd* GetParentFrame() const;
    // The outermost frame that the window is in, or is itself.
    CFrameWnd* GetTopLevelFrame() const;
    CWnd* GetWindow(UINT command) const { return FromHandle(::GetWindow(m_hWnd, command)); }
    CWnd* GetNextWindow(UINT flag = GW_HWNDNEXT) const { return GetWindow(flag); }
    CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
    // The owned window that was active last, the window itself if there is none.
    CWnd* GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
    void ShowOwnedPopups(BOOL show = TRUE) { ::ShowOwnedPopups(m_hWnd, show); }
    // The first of the children and their children that has the id.
    CWnd* GetDescendantWindow(int id, BOOL onlyPermanent = FALSE) const;
    BOOL IsChild(const CWnd* child) const;
    static CWnd* PASCAL WindowFromPoint(POINT p) { return FromHandle(::WindowFromPoint(p)); }
    CWnd* ChildWindowFromPoint(POINT p) const
    {
        return FromHandle(::ChildWindowFromPoint(m_hWnd, p));
    }
    static CWnd* PASCAL GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }

    // Dialog items
    CWnd* GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }
    void GetDlgItem(int id, HWND* window) const { *window = ::GetDlgItem(m_hWnd, id); }
    void SetDlgItemText(int id, LPCSTR text) { ::SetDlgItemText(m_hWnd, id, text); }
    int GetDlgItemText(int id, CString& text) const;
    int GetDlgItemText(int id, LPSTR buffer, int size) const
    {
        return int(::GetDlgItemText(m_hWnd, id, buffer, size));
    }
    void SetDlgItemInt(int id, UINT value, BOOL isSigned = TRUE)
    {
        ::SetDlgItemInt(m_hWnd, id, value, isSigned);
    }
    UINT GetDlgItemInt(int id, BOOL* translated = nullptr, BOOL isSigned = TRUE) const
    {
        return ::GetDlgItemInt(m_hWnd, id, translated, isSigned);
    }
    void CheckRadioButton(int first, int last, int checked)
    {
        ::CheckRadioButton(m_hWnd, first, last, checked);
    }
    // The id of the first that is checked, 0 for none.
    int GetCheckedRadioButton(int first, int last) const;
    void CheckDlgButton(int id, UINT check) { ::CheckDlgButton(m_hWnd, id, check); }
    UINT IsDlgButtonChecked(int id) const { return ::IsDlgButtonChecked(m_hWnd, id); }
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return ::SendDlgItemMessage(m_hWnd, id, message, wParam, lParam);
    }
    CWnd* GetNextDlgTabItem(CWnd* control, BOOL previous = FALSE) const;
    CWnd* GetNextDlgGroupItem(CWnd* control, BOOL previous = FALSE) const;
    BOOL IsDialogMessage(LPMSG message) { return ::IsDialogMessage(m_hWnd, message); }
    BOOL UpdateData(BOOL saveAndValidate = TRUE);
    // Asks target how the commands of the children stand, unless this window itself says so, and
    // disables buttons whose commands nobody handles.
    void UpdateDialogControls(CCmdTarget* target, BOOL disableIfNoHandler);

    // Scrolling
    virtual CScrollBar* GetScrollBarCtrl(int bar) const;
    int SetScrollPos(int bar, int position, BOOL redraw = TRUE)
    {
        return ::SetScrollPos(m_hWnd, bar, position, redraw);
    }
    int GetScrollPos(int bar) const { return ::GetScrollPos(m_hWnd, bar); }
    void SetScrollRange(int bar, int minimum, int maximum, BOOL redraw = TRUE)
    {
        ::SetScrollRange(m_hWnd, bar, minimum, maximum, redraw);
    }
    BOOL SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw = TRUE)
    {
        ::SetScrollInfo(m_hWnd, bar, info, redraw);
        return TRUE;
    }
    BOOL GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask = SIF_ALL);
    void GetScrollRange(int bar, LPINT minimum, LPINT maximum) const
    {
        ::GetScrollRange(m_hWnd, bar, minimum, maximum);
    }
    // The last position that can be scrolled to.
    int GetScrollLimit(int bar);
    BOOL EnableScrollBar(int bar, UINT arrows = ESB_ENABLE_BOTH)
    {
        return ::EnableScrollBar(m_hWnd, UINT(bar), arrows);
    }
    void ShowScrollBar(UINT bar, BOOL show = TRUE) { ::ShowScrollBar(m_hWnd, int(bar), show); }
    void ScrollWindow(int dx, int dy, LPCRECT rect = nullptr, LPCRECT clip = nullptr)
    {
        ::ScrollWindow(m_hWnd, dx, dy, rect, clip);
    }

    // Lays out child bars, whether or not their parent is shown yet, along the sides that they are
    // aligned to and round the one pane that takes what is left; a bar without an alignment stays
    // where it is. With reposQuery nothing moves, and rectParam gets the room that would be left;
    // with reposExtra its sides are the widths of borders that stay free round the pane. Without
    // stretch a bar is no longer than it wants to be.
    enum RepositionFlag : UINT
    {
        reposDefault,
        reposQuery,
        reposExtra,
    };
    void RepositionBars(UINT firstId, UINT lastId, UINT leftoverId, UINT flag = reposDefault,
                        LPRECT rectParam = nullptr, LPCRECT rectClient = nullptr,
                        BOOL stretch = TRUE);

    int MessageBox(LPCSTR text, LPCSTR caption = nullptr, UINT type = MB_OK)
    {
        return ::MessageBox(m_hWnd, text, caption, type);
    }

    // Modal loops. RunModalLoop pumps until EndModalLoop is called or the window is gone and gives
    // EndModalLoop's value, -1 when the application quits. Idle, it keeps the bars of the frames
    // that the user can reach up to date.
    int RunModalLoop(DWORD flags = 0);
    virtual BOOL ContinueModal() { return m_modalRunning; }
    virtual void EndModalLoop(int result);

    // Message translation before dispatch; TRUE when the message is done with.
    virtual BOOL PreTranslateMessage(MSG* message);
    static BOOL PASCAL WalkPreTranslateTree(HWND stop, MSG* message);

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    // Accessibility. A window with parts that are no windows calls EnableActiveAccessibility in its
    // constructor and overrides what it has to say of them; child ids count from 1, CHILDID_SELF is
    // the window. The base forms give what the platform says of the window. The application
    // initialises COM on the window's thread, by which other processes reach it.
    void EnableActiveAccessibility() { m_answersAccessibility = true; }
    virtual HRESULT get_accParent(IDispatch** parent);
    virtual HRESULT get_accChildCount(long* count);
    virtual HRESULT get_accChild(VARIANT child, IDispatch** object);
    virtual HRESULT get_accName(VARIANT child, BSTR* name);
    virtual HRESULT get_accValue(VARIANT child, BSTR* value);
    virtual HRESULT get_accDescription(VARIANT child, BSTR* description);
    virtual HRESULT get_accRole(VARIANT child, VARIANT* role);
    virtual HRESULT get_accState(VARIANT child, VARIANT* state);
    virtual HRESULT get_accHelp(VARIANT child, BSTR* help);
    virtual HRESULT get_accHelpTopic(BSTR* file, VARIANT child, long* topic);
    virtual HRESULT get_accKeyboardShortcut(VARIANT child, BSTR* shortcut);
    virtual HRESULT get_accFocus(VARIANT* child);
    virtual HRESULT get_accSelection(VARIANT* children);
    virtual HRESULT get_accDefaultAction(VARIANT child, BSTR* action);
    virtual HRESULT accSelect(long flags, VARIANT child);
    virtual HRESULT accLocation(long* left, long* top, long* width, long* height, VARIANT child);
    virtual HRESULT accNavigate(long direction, VARIANT start, VARIANT* end);
    virtual HRESULT accHitTest(long left, long top, VARIANT* child);
    virtual HRESULT accDoDefaultAction(VARIANT child);
    virtual HRESULT put_accName(VARIANT child, BSTR name);
    virtual HRESULT put_accValue(VARIANT child, BSTR value);

    // The previous procedure's turn with any message.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // Called by the window procedure; calls the handlers, else DefWindowProc.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

protected:
    // The default processing of the message in progress, with its own parameters.
    LRESULT Default();
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    // A message that this window's parent was sent about it. TRUE when handled.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    static BOOL PASCAL ReflectLastMsg(HWND child, LRESULT* result = nullptr);
    // The message in progress for a child, or null; the default processing if it declines.
    LRESULT ReflectElseDefault(HWND child);
    // After the last message, when the handle is gone: here an object may delete itself.
    virtual void PostNcDestroy() {}
    virtual void DoDataExchange(CDataExchange*) {}
    BOOL PreTranslateInput(LPMSG message);

    // Handlers; the base forms do the default processing.
    afx_msg int OnCreate(LPCREATESTRUCT) { return int(Default()); }
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT) { return BOOL(Default()); }
    afx_msg void OnDestroy() { Default(); }
    afx_msg void OnNcDestroy();
    afx_msg void OnClose() { Default(); }
    afx_msg void OnPaint() { Default(); }
    afx_msg void OnNcPaint() { Default(); }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return BOOL(Default()); }
    afx_msg void OnSysColorChange() { Default(); }
    afx_msg void OnSettingChange(UINT, LPCTSTR) { Default(); }
    afx_msg void OnSysCommand(UINT, LPARAM) { Default(); }
    afx_msg BOOL OnQueryEndSession() { return BOOL(Default()); }
    afx_msg void OnEndSession(BOOL) { Default(); }
    afx_msg BOOL OnCopyData(CWnd*, COPYDATASTRUCT*) { return BOOL(Default()); }
    afx_msg void OnDropFiles(HDROP) { Default(); }
    afx_msg BOOL OnHelpInfo(HELPINFO*) { return BOOL(Default()); }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg void OnSize(UINT, int, int) { Default(); }
    afx_msg void OnMove(int, int) { Default(); }
    afx_msg void OnMoving(UINT, LPRECT) { Default(); }
    afx_msg void OnSizing(UINT, LPRECT) { Default(); }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
    afx_msg void OnWindowPosChanging(WINDOWPOS*) { Default(); }
    afx_msg void OnWindowPosChanged(WINDOWPOS*) { Default(); }
    afx_msg void OnShowWindow(BOOL, UINT) { Default(); }
    afx_msg void OnEnable(BOOL) { Default(); }
    afx_msg void OnEnterSizeMove() { Default(); }
    afx_msg void OnExitSizeMove() { Default(); }
    afx_msg void OnStyleChanging(int, LPSTYLESTRUCT) { Default(); }
    afx_msg void OnStyleChanged(int, LPSTYLESTRUCT) { Default(); }
    afx_msg void OnActivate(UINT, CWnd*, BOOL) { Default(); }
    afx_msg void OnActivateApp(BOOL, DWORD) { Default(); }
    afx_msg int OnMouseActivate(CWnd*, UINT, UINT) { return int(Default()); }
    afx_msg void OnSetFocus(CWnd*) { Default(); }
    afx_msg void OnKillFocus(CWnd*) { Default(); }
    afx_msg void OnCaptureChanged(CWnd*) { Default(); }
    afx_msg void OnCancelMode() { Default(); }
    afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT) { return BOOL(Default()); }
    afx_msg UINT OnGetDlgCode() { return UINT(Default()); }
    afx_msg void OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) { Default(); }
    afx_msg LRESULT OnNcHitTest(CPoint) { return Default(); }
    afx_msg BOOL OnNcActivate(BOOL) { return BOOL(Default()); }
    afx_msg void OnNcLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnNcLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnNcLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnNcRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnNcRButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnNcMouseMove(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
    afx_msg void OnMouseLeave() { Default(); }
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return BOOL(Default()); }
    afx_msg void OnMouseHWheel(UINT, short, CPoint) { Default(); }
    afx_msg void OnContextMenu(CWnd*, CPoint) { Default(); }
    afx_msg HCURSOR OnQueryDragIcon() { return reinterpret_cast<HCURSOR>(Default()); }
    afx_msg void OnMouseHover(UINT, CPoint) { Default(); }
    afx_msg LRESULT OnMenuChar(UINT, UINT, CMenu*) { return Default(); }
    afx_msg void OnInitMenu(CMenu*) { Default(); }
    afx_msg void OnInitMenuPopup(CMenu*, UINT, BOOL) { Default(); }
    afx_msg void OnMenuSelect(UINT, UINT, HMENU) { Default(); }
    afx_msg void OnEnterIdle(UINT, CWnd*) { Default(); }
    afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnKeyUp(UINT, UINT, UINT) { Default(); }
    afx_msg void OnChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysKeyUp(UINT, UINT, UINT) { Default(); }
    afx_msg void OnUpdateUIState(UINT, UINT) { Default(); }
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnTimer(UINT_PTR) { Default(); }
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT draw);
    afx_msg void OnMeasureItem(int id, LPMEASUREITEMSTRUCT measure);
    afx_msg int OnCompareItem(int id, LPCOMPAREITEMSTRUCT compare);
    afx_msg void OnDeleteItem(int id, LPDELETEITEMSTRUCT deleted);
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    // What a list box is to do with a key: its own virtuals first.
    afx_msg LRESULT OnKeyToItem(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    explicit CWnd(HWND place)
        : m_hWnd(place)
    {}

    friend class CFrameWnd;
    WNDPROC m_previousProc = nullptr;
    bool m_modalRunning = false;
    int m_modalResult = 0;
    bool m_answersAccessibility = false;
    framework::AccessibleWindow* m_accessible = nullptr; // one reference of it is ours

    void EndAccessibility();
    void BindTo(HWND window);
    void TakeProcedure();

    static LRESULT CALLBACK Procedure(HWND, UINT, WPARAM, LPARAM);
    friend class CreationHook;
};

// The object for a scroll bar's handle; null for null.
FRAMEWORK_API CScrollBar* AfxScrollBarFromHandle(HWND bar);

// Unpacks a colour message and calls handler(dc, control, kind).
template <class Handler> LRESULT AfxCallCtlColor(const AFX_MSGCALL& m, Handler handler)
{
    CDC* dc = CDC::FromHandle(reinterpret_cast<HDC>(m.wParam));
    CWnd* control = CWnd::FromHandle(reinterpret_cast<HWND>(m.lParam));
    return reinterpret_cast<LRESULT>(handler(dc, control, UINT(m.message - WM_CTLCOLORMSGBOX)));
}

// Binds wnd to the next window that this thread creates (in parent, unless that is null), before
// its first message; for windows that the platform creates on the caller's behalf.
// AfxUnhookWindowCreate says whether it happened.
FRAMEWORK_API void AfxHookWindowCreate(CWnd* wnd, HWND parent = nullptr);
FRAMEWORK_API BOOL AfxUnhookWindowCreate();
