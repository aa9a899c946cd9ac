// Opening and closing a form against the framework's plain dialog from the same template.

#include "CustomDialog.h"
#include "Row.h"
#include "Stage.h"
#include "resource.h"

namespace {

constexpr int Openings = 10;

struct PlainDialog : CDialog
{
    PlainDialog()
        : CDialog(IDD_BENCH_FORM, &Stage())
    {}
};

struct OurDialog : CCustomDialog
{
    OurDialog()
        : CCustomDialog(IDD_BENCH_FORM, &Stage())
    {}
};

template <class Dialog, APPMODE mode> Side Open()
{
    return {[] { EnterMode(mode); },
            [] {
                for (int opening = 0; opening < Openings; ++opening)
                {
                    Dialog dialog;
                    dialog.Create(IDD_BENCH_FORM, &Stage());
                    dialog.ShowWindow(SW_SHOW);
                    PaintNow(dialog);
                    dialog.DestroyWindow();
                }
            },
            [] { PaintNow(Stage()); }};
}

} // namespace

std::vector<Row> DialogRows()
{
    return {{"dialog.open", 2, 5, &Open<OurDialog, ONBOARD>, &Open<PlainDialog, STD>}};
}
