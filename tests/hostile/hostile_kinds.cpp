// The library's window classes, each with its styles and the messages it handles.
#include "hostile.h"

#include <afxcmn.h>
#include <commctrl.h>

#include <climits>
#include <utility>
#include <vector>

#include "controls/SeparatorWnd.h"
#include "controls/ZoButton.h"
#include "controls/ZoButtonVariants.h"
#include "controls/ZoComboBox.h"
#include "controls/ZoEdit.h"
#include "controls/ZoEditInPlace.h"
#include "controls/ZoProgressCtrl.h"
#include "controls/ZoRangeSliderCtrl.h"
#include "controls/ZoScrollBar.h"
#include "controls/ZoSliderCtrl.h"
#include "controls/ZoSpinButtonCtrl.h"
#include "controls/ZoStatic.h"
#include "controls/ZoTabCtrl.h"
#include "lists/ZoHeaderCtrl.h"
#include "lists/ZoListCtrl.h"
#include "lists/ZoTreeListCtrl.h"

using namespace ZoControls;

namespace hostile {

namespace {

const DWORD kChild = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
const wchar_t kText[] = L"Hostile & (text)";

// Value-only messages: both parameters drawn from the extremes, lParam sometimes a packed pair.
Message Values(const char* name, UINT message)
{
    return Message{name, [message](HWND control, Random& random) {
                       const LPARAM lParam = random.OneIn(2) ? (LPARAM)Extreme(random) : ExtremePair(random);
                       SendMessageW(control, message, (WPARAM)(INT_PTR)Extreme(random), lParam);
                   }};
}

// Offsets for a formatting rectangle that keeps some room to format in.
int EditOffset(Random& random)
{
    const int offset = Extreme(random);
    return offset > 15 ? 15 : offset < -15 ? -15 : offset;
}

// Margins travel as unsigned 16-bit words: -15 is a margin of 65521 pixels. Wine's EDIT then
// puts its formatting rectangle beyond the 16-bit caret positions it compares with it, and a
// single-line edit's caret scrolling steps its offset through all 2^32 values (the platform's
// own edit hangs on EM_SETMARGINS with MAKELPARAM(-15, -15) the same way). Margins stay
// within what a 16-bit position can hold beside the text; EC_USEFONTINFO is kept.
WORD EditMargin(Random& random)
{
    const int margin = Extreme(random);
    return margin == EC_USEFONTINFO ? EC_USEFONTINFO : (WORD)(margin < 0 ? 0 : margin > 255 ? 255 : margin);
}

// A message whose lParam points at a valid `T` that `fill` sets up with absurd values.
template <typename T, typename Fill>
Message With(const char* name, UINT message, Fill fill)
{
    return Message{name, [message, fill](HWND control, Random& random) {
                       T data{};
                       const WPARAM wParam = fill(data, random);
                       SendMessageW(control, message, wParam, (LPARAM)&data);
                   }};
}

// A C++ operation of the control called with absurd values.
template <typename T, typename Operation>
Message Call(const char* name, Operation call)
{
    return Message{name, [call](HWND control, Random& random) {
                       // One draw from the storm's stream whether or not the call happens, so that a
                       // run on the platform's own control sends the same messages otherwise.
                       Random own(random.Next());
                       if (T* object = dynamic_cast<T*>(CWnd::FromHandlePermanent(control)))
                           call(*object, own);
                   }};
}

template <typename T>
CWnd* Adopt(T* control, BOOL created)
{
    if (created)
        return control;
    delete control;
    return nullptr;
}

template <typename T>
CWnd* CreatePlain(CWnd& host, DWORD style, const RECT& rect, UINT id)
{
    T* control = new T;
    return Adopt(control, control->Create(kChild | style, rect, &host, id));
}

template <typename T>
CWnd* CreateTexted(CWnd& host, DWORD style, const RECT& rect, UINT id)
{
    T* control = new T;
    return Adopt(control, control->Create(kText, kChild | style, rect, &host, id));
}

void Click(HWND control, POINT at)
{
    // A real press has its release queued behind it: the platform's scroll bar tracks a press in a
    // loop of its own that ends only when the release arrives.
    PostMessageW(control, WM_LBUTTONUP, 0, MAKELPARAM(at.x + 9, at.y));
    SendMessageW(control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    SendMessageW(control, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(at.x + 9, at.y));
    SendMessageW(control, WM_LBUTTONUP, 0, MAKELPARAM(at.x + 9, at.y));
}

void PressKey(HWND control, UINT key)
{
    SetFocus(control);
    SendMessageW(control, WM_KEYDOWN, key, 1);
    SendMessageW(control, WM_KEYUP, key, 0xC0000001);
}

POINT Middle(HWND control)
{
    RECT client;
    GetClientRect(control, &client);
    return POINT{client.right / 2, client.bottom / 2};
}

// ---------------------------------------------------------------- messages per family

std::vector<Message> ButtonMessages()
{
    return {Values("BM_SETCHECK", BM_SETCHECK), Values("BM_SETSTATE", BM_SETSTATE),
            Values("BM_SETSTYLE", BM_SETSTYLE), Values("BM_CLICK", BM_CLICK), Values("BM_GETCHECK", BM_GETCHECK),
            Values("BM_SETDONTCLICK", BM_SETDONTCLICK),
            Message{"BM_SETIMAGE", [](HWND control, Random& random) {
                        SendMessageW(control, BM_SETIMAGE, random.OneIn(2) ? IMAGE_BITMAP : IMAGE_ICON, 0);
                    }},
            Call<CZoButton>("SetZoPNGImageBackgroundColor", [](CZoButton& button, Random& random) {
                const COLORREF colors[2] = {(COLORREF)Extreme(random), (COLORREF)Extreme(random)};
                button.SetZoPNGImageBackgroundColor(colors, (int)random.Below(4) - 1);
            })};
}

std::vector<Message> StaticMessages()
{
    return {Message{"STM_SETIMAGE", [](HWND control, Random& random) {
                        SendMessageW(control, STM_SETIMAGE, random.OneIn(2) ? IMAGE_BITMAP : IMAGE_ICON, 0);
                    }},
            Values("STM_SETICON", STM_SETICON), Values("STM_GETIMAGE", STM_GETIMAGE)};
}

std::vector<Message> ScrollBarMessages()
{
    return {Values("SBM_SETRANGE", SBM_SETRANGE), Values("SBM_SETRANGEREDRAW", SBM_SETRANGEREDRAW),
            Values("SBM_SETPOS", SBM_SETPOS), Values("SBM_ENABLE_ARROWS", SBM_ENABLE_ARROWS),
            With<SCROLLINFO>("SBM_SETSCROLLINFO", SBM_SETSCROLLINFO,
                             [](SCROLLINFO& info, Random& random) {
                                 info.cbSize = sizeof info;
                                 info.fMask = SIF_ALL | (random.OneIn(3) ? SIF_DISABLENOSCROLL : 0);
                                 info.nMin = Extreme(random);
                                 info.nMax = Extreme(random);
                                 info.nPage = (UINT)Extreme(random);
                                 info.nPos = Extreme(random);
                                 info.nTrackPos = Extreme(random);
                                 return (WPARAM)TRUE;
                             }),
            With<SCROLLINFO>("SBM_GETSCROLLINFO", SBM_GETSCROLLINFO,
                             [](SCROLLINFO& info, Random&) {
                                 info.cbSize = sizeof info;
                                 info.fMask = SIF_ALL;
                                 return (WPARAM)0;
                             }),
            Call<CZoScrollBar>("SetBuddy", [](CZoScrollBar& bar, Random& random) {
                bar.SetBuddy(random.OneIn(2) ? NULL : bar.GetParent());
            })};
}

std::vector<Message> ProgressMessages()
{
    return {Values("PBM_SETRANGE", PBM_SETRANGE),     Values("PBM_SETRANGE32", PBM_SETRANGE32),
            Values("PBM_SETPOS", PBM_SETPOS),         Values("PBM_DELTAPOS", PBM_DELTAPOS),
            Values("PBM_SETSTEP", PBM_SETSTEP),       Values("PBM_STEPIT", PBM_STEPIT),
            Values("PBM_SETBARCOLOR", PBM_SETBARCOLOR), Values("PBM_SETBKCOLOR", PBM_SETBKCOLOR),
            Values("PBM_SETMARQUEE", PBM_SETMARQUEE), Values("PBM_SETSTATE", PBM_SETSTATE)};
}

std::vector<Message> SpinMessages()
{
    return {Values("UDM_SETRANGE", UDM_SETRANGE), Values("UDM_SETRANGE32", UDM_SETRANGE32),
            Values("UDM_SETPOS", UDM_SETPOS),     Values("UDM_SETPOS32", UDM_SETPOS32),
            Values("UDM_SETBASE", UDM_SETBASE),
            Message{"UDM_SETACCEL", [](HWND control, Random& random) {
                        UDACCEL accel[2] = {{(UINT)Extreme(random), (UINT)Extreme(random)},
                                            {(UINT)Extreme(random), (UINT)Extreme(random)}};
                        SendMessageW(control, UDM_SETACCEL, random.Below(3), (LPARAM)accel);
                    }},
            Message{"UDM_SETBUDDY", [](HWND control, Random& random) {
                        SendMessageW(control, UDM_SETBUDDY, random.OneIn(2) ? 0 : (WPARAM)GetParent(control), 0);
                    }},
            Message{"UDM_GETRANGE32", [](HWND control, Random&) {
                        int low = 0, high = 0;
                        SendMessageW(control, UDM_GETRANGE32, (WPARAM)&low, (LPARAM)&high);
                    }}};
}

// Range ends the platform's own trackbar survives: under Wine it allocates its automatic ticks
// for the whole range itself, and a range near the full int span overflows that allocation. A
// million still makes far more ticks than the slider keeps.
int SliderRangeEnd(Random& random)
{
    const int end = Extreme(random);
    return end > 1000000 ? 1000000 : end < -1000000 ? -1000000 : end;
}

Message RangeEnd(const char* name, UINT message)
{
    return Message{name, [message](HWND control, Random& random) {
                       const LPARAM lParam = message == TBM_SETRANGE
                                                 ? MAKELPARAM(SliderRangeEnd(random) & 0xFFFF, SliderRangeEnd(random) & 0xFFFF)
                                                 : (LPARAM)SliderRangeEnd(random);
                       SendMessageW(control, message, random.Below(2), lParam);
                   }};
}

std::vector<Message> SliderMessages()
{
    return {RangeEnd("TBM_SETRANGE", TBM_SETRANGE),       RangeEnd("TBM_SETRANGEMIN", TBM_SETRANGEMIN),
            RangeEnd("TBM_SETRANGEMAX", TBM_SETRANGEMAX), Values("TBM_SETPOS", TBM_SETPOS),
            Values("TBM_SETTIC", TBM_SETTIC),           Values("TBM_SETTICFREQ", TBM_SETTICFREQ),
            Values("TBM_CLEARTICS", TBM_CLEARTICS),     Values("TBM_SETSEL", TBM_SETSEL),
            Values("TBM_SETSELSTART", TBM_SETSELSTART), Values("TBM_SETSELEND", TBM_SETSELEND),
            Values("TBM_CLEARSEL", TBM_CLEARSEL),       Values("TBM_SETPAGESIZE", TBM_SETPAGESIZE),
            Values("TBM_SETLINESIZE", TBM_SETLINESIZE), Values("TBM_SETTHUMBLENGTH", TBM_SETTHUMBLENGTH),
            Values("TBM_GETTIC", TBM_GETTIC),           Values("TBM_GETTICPOS", TBM_GETTICPOS),
            Values("TBM_GETNUMTICS", TBM_GETNUMTICS),   Values("TBM_GETPTICS", TBM_GETPTICS),
            With<RECT>("TBM_GETCHANNELRECT", TBM_GETCHANNELRECT, [](RECT&, Random&) { return (WPARAM)0; }),
            With<RECT>("TBM_GETTHUMBRECT", TBM_GETTHUMBRECT, [](RECT&, Random&) { return (WPARAM)0; }),
            Call<CZoSliderCtrl>("SetSelection", [](CZoSliderCtrl& slider, Random& random) {
                slider.SetSelection(Extreme(random), Extreme(random));
            })};
}

std::vector<Message> RangeSliderMessages()
{
    std::vector<Message> messages = SliderMessages();
    messages.push_back(Call<CZoRangeSliderCtrl>("SetPos", [](CZoRangeSliderCtrl& slider, Random& random) {
        slider.SetPos(Extreme(random));
    }));
    messages.push_back(Call<CZoRangeSliderCtrl>("ConvertWindowX2SliderPos", [](CZoRangeSliderCtrl& slider, Random& random) {
        slider.ConvertSliderPos2WindowX(slider.ConvertWindowX2SliderPos(Extreme(random)));
    }));
    return messages;
}

std::vector<Message> TabMessages()
{
    return {With<TCITEMW>("TCM_INSERTITEMW", TCM_INSERTITEMW,
                          [](TCITEMW& item, Random& random) {
                              item.mask = TCIF_TEXT | TCIF_IMAGE;
                              item.pszText = const_cast<wchar_t*>(random.OneIn(3) ? L"" : kText);
                              item.iImage = Extreme(random);
                              return (WPARAM)(INT_PTR)(random.OneIn(2) ? (int)random.Below(5) : Extreme(random));
                          }),
            With<TCITEMW>("TCM_SETITEMW", TCM_SETITEMW,
                          [](TCITEMW& item, Random& random) {
                              item.mask = TCIF_TEXT;
                              item.pszText = const_cast<wchar_t*>(L"A much longer tab caption than before");
                              return (WPARAM)(INT_PTR)Extreme(random);
                          }),
            Values("TCM_DELETEITEM", TCM_DELETEITEM), Values("TCM_DELETEALLITEMS", TCM_DELETEALLITEMS),
            Values("TCM_SETCURSEL", TCM_SETCURSEL), Values("TCM_SETCURFOCUS", TCM_SETCURFOCUS),
            Values("TCM_SETITEMSIZE", TCM_SETITEMSIZE), Values("TCM_SETPADDING", TCM_SETPADDING),
            Values("TCM_SETMINTABWIDTH", TCM_SETMINTABWIDTH), Values("TCM_HIGHLIGHTITEM", TCM_HIGHLIGHTITEM),
            With<RECT>("TCM_GETITEMRECT", TCM_GETITEMRECT,
                       [](RECT&, Random& random) { return (WPARAM)(INT_PTR)Extreme(random); }),
            With<RECT>("TCM_ADJUSTRECT", TCM_ADJUSTRECT,
                       [](RECT& rect, Random& random) {
                           rect = RECT{Extreme(random), Extreme(random), Extreme(random), Extreme(random)};
                           return (WPARAM)random.Below(2);
                       }),
            With<TCHITTESTINFO>("TCM_HITTEST", TCM_HITTEST, [](TCHITTESTINFO& info, Random& random) {
                info.pt = POINT{Extreme(random), Extreme(random)};
                return (WPARAM)0;
            })};
}

std::vector<Message> HeaderMessages()
{
    return {With<HDITEMW>("HDM_INSERTITEMW", HDM_INSERTITEMW,
                          [](HDITEMW& item, Random& random) {
                              item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
                              item.pszText = const_cast<wchar_t*>(kText);
                              item.cxy = Extreme(random);
                              item.fmt = (int)(random.Next() & 0xFFFF);
                              return (WPARAM)(INT_PTR)(random.OneIn(2) ? (int)random.Below(4) : Extreme(random));
                          }),
            With<HDITEMW>("HDM_SETITEMW", HDM_SETITEMW,
                          [](HDITEMW& item, Random& random) {
                              item.mask = HDI_WIDTH | HDI_FORMAT;
                              item.cxy = Extreme(random);
                              item.fmt = (int)(random.Next() & 0xFFFF);
                              return (WPARAM)(INT_PTR)Extreme(random);
                          }),
            Values("HDM_DELETEITEM", HDM_DELETEITEM), Values("HDM_SETHOTDIVIDER", HDM_SETHOTDIVIDER),
            Message{"HDM_LAYOUT", [](HWND control, Random& random) {
                        RECT rect = {Extreme(random), Extreme(random), Extreme(random), Extreme(random)};
                        WINDOWPOS position{};
                        HDLAYOUT layout = {&rect, &position};
                        SendMessageW(control, HDM_LAYOUT, 0, (LPARAM)&layout);
                    }},
            With<RECT>("HDM_GETITEMRECT", HDM_GETITEMRECT,
                       [](RECT&, Random& random) { return (WPARAM)(INT_PTR)Extreme(random); }),
            Message{"HDM_SETORDERARRAY", [](HWND control, Random& random) {
                        // A shuffled order of the items there are, its count sometimes wrong. Wine's
                        // header trusts every index in the array and writes outside its items for
                        // a bad one (its native control corrupts the heap on the same input).
                        const int count = (int)SendMessageW(control, HDM_GETITEMCOUNT, 0, 0);
                        std::vector<int> order(count > 0 ? count : 1);
                        for (int i = 0; i < (int)order.size(); ++i)
                            order[i] = i;
                        for (size_t i = order.size(); i > 1; --i)
                            std::swap(order[i - 1], order[random.Below(i)]);
                        const WPARAM claimed = random.OneIn(4) ? (WPARAM)random.Below(order.size() + 2) : order.size();
                        SendMessageW(control, HDM_SETORDERARRAY, claimed <= order.size() ? claimed : order.size(),
                                     (LPARAM)order.data());
                    }},
            Call<CZoHeaderCtrl>("SetSortOption", [](CZoHeaderCtrl& header, Random& random) {
                header.SetSortOption(Extreme(random), random.OneIn(2));
            })};
}

int CALLBACK CompareAnyhow(LPARAM a, LPARAM b, LPARAM)
{
    return a < b ? -1 : a > b ? 1 : 0;
}

// `itemDataIsNode`: the rows' item data are the tree-list's node pointers, which a host never
// makes up, so rows are inserted without item data.
std::vector<Message> ListMessages(bool itemDataIsNode = false)
{
    return {With<LVCOLUMNW>("LVM_INSERTCOLUMNW", LVM_INSERTCOLUMNW,
                            [](LVCOLUMNW& column, Random& random) {
                                column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
                                column.pszText = const_cast<wchar_t*>(kText);
                                column.cx = Extreme(random);
                                column.fmt = (int)random.Below(4);
                                return (WPARAM)(INT_PTR)(random.OneIn(2) ? (int)random.Below(4) : Extreme(random));
                            }),
            Message{"LVM_INSERTITEMW", [itemDataIsNode](HWND control, Random& random) {
                        LVITEMW item{};
                        item.mask = LVIF_TEXT | LVIF_IMAGE | (itemDataIsNode ? 0 : LVIF_PARAM);
                        item.iItem = random.OneIn(2) ? (int)random.Below(30) : Extreme(random);
                        item.pszText = const_cast<wchar_t*>(random.OneIn(4) ? L"" : kText);
                        item.iImage = Extreme(random);
                        item.lParam = Extreme(random);
                        SendInsertion(control, item);
                    }},
            With<LVITEMW>("LVM_SETITEMTEXTW", LVM_SETITEMTEXTW,
                          [](LVITEMW& item, Random& random) {
                              item.iSubItem = random.OneIn(2) ? (int)random.Below(4) : Extreme(random);
                              item.pszText = const_cast<wchar_t*>(L"12.5.2024 a changed cell");
                              return (WPARAM)(INT_PTR)(random.OneIn(2) ? (int)random.Below(30) : Extreme(random));
                          }),
            With<LVITEMW>("LVM_SETITEMSTATE", LVM_SETITEMSTATE,
                          [](LVITEMW& item, Random& random) {
                              item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
                              item.state = random.OneIn(2) ? item.stateMask : 0;
                              return (WPARAM)(INT_PTR)Extreme(random);
                          }),
            With<RECT>("LVM_GETITEMRECT", LVM_GETITEMRECT,
                       [](RECT& rect, Random& random) {
                           rect.left = (LONG)random.Below(4);
                           return (WPARAM)(INT_PTR)Extreme(random);
                       }),
            Values("LVM_DELETEITEM", LVM_DELETEITEM), Values("LVM_DELETECOLUMN", LVM_DELETECOLUMN),
            Values("LVM_DELETEALLITEMS", LVM_DELETEALLITEMS), Values("LVM_SETCOLUMNWIDTH", LVM_SETCOLUMNWIDTH),
            Values("LVM_ENSUREVISIBLE", LVM_ENSUREVISIBLE), Values("LVM_SCROLL", LVM_SCROLL),
            Values("LVM_EDITLABELW", LVM_EDITLABELW), Values("LVM_CANCELEDITLABEL", LVM_CANCELEDITLABEL),
            Values("LVM_REDRAWITEMS", LVM_REDRAWITEMS), Values("LVM_SETBKCOLOR", LVM_SETBKCOLOR),
            Values("LVM_SETEXTENDEDLISTVIEWSTYLE", LVM_SETEXTENDEDLISTVIEWSTYLE),
            Message{"LVM_SETITEMCOUNT", [](HWND control, Random& random) {
                        // Counts stay within what the platform's own list allocates quickly.
                        SendMessageW(control, LVM_SETITEMCOUNT, random.Below(5000), Extreme(random) & 3);
                    }},
            Message{"LVM_SORTITEMS", [](HWND control, Random& random) {
                        SendMessageW(control, LVM_SORTITEMS, Extreme(random), (LPARAM)CompareAnyhow);
                    }},
            Call<CZoListCtrl>("EditSubLabel", [](CZoListCtrl& list, Random& random) {
                list.EditSubLabel(random.OneIn(2) ? (int)random.Below(5) : Extreme(random),
                                  random.OneIn(2) ? (int)random.Below(3) : Extreme(random));
            }),
            Call<CZoListCtrl>("SetSortOption", [](CZoListCtrl& list, Random& random) {
                list.SetColumnSortMethod(Extreme(random) & 7, (CZoListCtrl::E_SortColumnMethod)((int)random.Below(12) - 2));
                list.SetSortOption(random.OneIn(2) ? (int)random.Below(3) : Extreme(random), random.OneIn(2));
                list.DoSortNow();
            }),
            Call<CZoListCtrl>("SearchString", [](CZoListCtrl& list, Random& random) {
                list.SearchString(Extreme(random), L"cell", random.OneIn(2), random.OneIn(2));
                list.SetEditableColumn(Extreme(random));
            })};
}

std::vector<Message> EditMessages()
{
    return {Values("EM_SETSEL", EM_SETSEL),           Values("EM_SETLIMITTEXT", EM_SETLIMITTEXT),
            Message{"EM_SETMARGINS", [](HWND control, Random& random) {
                SendMessageW(control, EM_SETMARGINS, random.Below(4) | EC_USEFONTINFO * random.Below(2),
                             MAKELPARAM(EditMargin(random), EditMargin(random)));
            }},   Values("EM_SETREADONLY", EM_SETREADONLY),
            Values("EM_LINESCROLL", EM_LINESCROLL),   Values("EM_SCROLL", EM_SCROLL),
            Values("EM_LINEINDEX", EM_LINEINDEX),     Values("EM_LINELENGTH", EM_LINELENGTH),
            Values("EM_POSFROMCHAR", EM_POSFROMCHAR), Values("EM_CHARFROMPOS", EM_CHARFROMPOS),
            Values("EM_UNDO", EM_UNDO),               Values("WM_CLEAR", WM_CLEAR),
            Message{"EM_REPLACESEL", [](HWND control, Random& random) {
                        SendMessageW(control, EM_REPLACESEL, random.Below(2), (LPARAM)kText);
                    }},
            With<RECT>("EM_SETRECT", EM_SETRECT, [](RECT& rect, Random& random) {
                rect = RECT{EditOffset(random), EditOffset(random), 40 + EditOffset(random), 20 + EditOffset(random)};
                return (WPARAM)0;
            })};
}

std::vector<Message> ComboMessages()
{
    return {Message{"CB_ADDSTRING", [](HWND control, Random&) { SendMessageW(control, CB_ADDSTRING, 0, (LPARAM)kText); }},
            Message{"CB_INSERTSTRING", [](HWND control, Random& random) {
                        SendMessageW(control, CB_INSERTSTRING, (WPARAM)(INT_PTR)Extreme(random), (LPARAM)L"inserted");
                    }},
            Values("CB_DELETESTRING", CB_DELETESTRING),   Values("CB_RESETCONTENT", CB_RESETCONTENT),
            Values("CB_SETCURSEL", CB_SETCURSEL),         Values("CB_SHOWDROPDOWN", CB_SHOWDROPDOWN),
            Values("CB_SETITEMHEIGHT", CB_SETITEMHEIGHT), Values("CB_SETDROPPEDWIDTH", CB_SETDROPPEDWIDTH),
            Values("CB_LIMITTEXT", CB_LIMITTEXT),         Values("CB_SETEDITSEL", CB_SETEDITSEL),
            Values("CB_SETHORIZONTALEXTENT", CB_SETHORIZONTALEXTENT),
            Values("CB_SETMINVISIBLE", CB_SETMINVISIBLE), Values("CB_GETITEMHEIGHT", CB_GETITEMHEIGHT),
            With<COMBOBOXINFO>("CB_GETCOMBOBOXINFO", CB_GETCOMBOBOXINFO, [](COMBOBOXINFO& info, Random& random) {
                info.cbSize = random.OneIn(4) ? 0 : sizeof info;
                return (WPARAM)0;
            })};
}

std::vector<Message> TreeListMessages()
{
    std::vector<Message> messages = ListMessages(true);
    // Node handles are pointers: only those of existing rows (or 0) are passed.
    auto nodeOfSomeRow = [](CZoTreeListCtrl& tree, Random& random) {
        return tree.GetItemNode(random.OneIn(3) ? Extreme(random) : (int)random.Below(20));
    };
    messages.push_back(Call<CZoTreeListCtrl>("InsertNode", [nodeOfSomeRow](CZoTreeListCtrl& tree, Random& random) {
        tree.InsertNode(nodeOfSomeRow(tree, random), L"node & (child)", Extreme(random));
    }));
    messages.push_back(Call<CZoTreeListCtrl>("Expand/Collapse", [](CZoTreeListCtrl& tree, Random& random) {
        const int row = random.OneIn(3) ? Extreme(random) : (int)random.Below(20);
        if (random.OneIn(2))
            tree.Expand(row);
        else
            tree.Collapse(row);
    }));
    messages.push_back(Call<CZoTreeListCtrl>("DeleteNode", [](CZoTreeListCtrl& tree, Random& random) {
        tree.DeleteNode(random.OneIn(3) ? Extreme(random) : (int)random.Below(20), random.OneIn(2));
    }));
    messages.push_back(Call<CZoTreeListCtrl>("SetItemBold/Focus", [](CZoTreeListCtrl& tree, Random& random) {
        tree.SetItemBold(Extreme(random), Extreme(random));
        tree.SetItemFocus(Extreme(random));
        tree.SetItemText(Extreme(random), Extreme(random), L"text");
    }));
    messages.push_back(Call<CZoTreeListCtrl>("Reset", [](CZoTreeListCtrl& tree, Random& random) {
        if (random.OneIn(4))
            tree.Reset(Extreme(random));
    }));
    return messages;
}

// ---------------------------------------------------------------- creation of the odd ones

CWnd* CreateSeparator(CWnd& host, DWORD style, const RECT& rect, UINT id)
{
    // The style selects the direction (bit 0) and whether the bar can be dragged (bit 1).
    CSeparatorWnd* bar = new CSeparatorWnd(id, (style & 1) ? CSeparatorWnd::SeparatorDirection_Horizontal
                                                           : CSeparatorWnd::SeparatorDirection_Vertical,
                                           &host, (style & 2) != 0);
    const LPCTSTR className = AfxRegisterWndClass(0, ::LoadCursor(NULL, IDC_ARROW));
    return Adopt(bar, bar->Create(className, L"", WS_CHILD | WS_VISIBLE, rect, &host, id));
}

CWnd* CreateInPlaceEditor(CWnd& host, DWORD style, const RECT& rect, UINT id)
{
    CZoEditInPlace* editor = new CZoEditInPlace(host.GetSafeHwnd(), 0, 0, kText);
    return Adopt(editor, editor->Create(kChild | style, rect, &host, id));
}

template <CZoScrollBar::E_ScrollBarTheme Theme>
CWnd* CreateScrollBar(CWnd& host, DWORD style, const RECT& rect, UINT id)
{
    CZoScrollBar* bar = new CZoScrollBar(Theme);
    return Adopt(bar, bar->Create(kChild | style, rect, &host, id));
}

void ProvokeList(HWND control)
{
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.cx = 120;
    column.pszText = const_cast<wchar_t*>(kText);
    SendMessageW(control, LVM_INSERTCOLUMNW, 0, (LPARAM)&column);
    for (int i = 0; i < 3; ++i) {
        LVITEMW item{};
        item.mask = LVIF_TEXT;
        item.iItem = i;
        item.pszText = const_cast<wchar_t*>(kText);
        SendMessageW(control, LVM_INSERTITEMW, 0, (LPARAM)&item);
    }
    Click(control, POINT{10, 30});
    SendMessageW(control, LVM_EDITLABELW, 1, 0);
    if (HWND editor = (HWND)SendMessageW(control, LVM_GETEDITCONTROL, 0, 0))
        PressKey(editor, VK_RETURN);
    SetFocus(GetParent(control));
}

void ProvokeTree(HWND control)
{
    if (CZoTreeListCtrl* tree = dynamic_cast<CZoTreeListCtrl*>(CWnd::FromHandlePermanent(control))) {
        tree->InsertColumn(0, L"Name", LVCFMT_LEFT, 120);
        const DWORD_PTR parent = tree->InsertNode(0, L"parent");
        tree->InsertNode(parent, L"child");
        tree->Collapse(0);
        tree->Expand(0);
    }
    ProvokeList(control);
}

void ProvokeCombo(HWND control)
{
    for (int i = 0; i < 3; ++i)
        SendMessageW(control, CB_ADDSTRING, 0, (LPARAM)kText);
    PressKey(control, VK_DOWN);
    SetFocus(GetParent(control));
}

void ProvokeTabs(HWND control)
{
    for (int i = 0; i < 3; ++i) {
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<wchar_t*>(kText);
        SendMessageW(control, TCM_INSERTITEMW, i, (LPARAM)&item);
    }
    RECT tab{};
    SendMessageW(control, TCM_GETITEMRECT, 1, (LPARAM)&tab);
    Click(control, POINT{(tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2});
}

void ProvokeHeader(HWND control)
{
    HDITEMW item{};
    item.mask = HDI_TEXT | HDI_WIDTH;
    item.cxy = 80;
    item.pszText = const_cast<wchar_t*>(kText);
    SendMessageW(control, HDM_INSERTITEMW, 0, (LPARAM)&item);
    Click(control, POINT{10, 5});
}

void ProvokeRangeSlider(HWND control)
{
    SendMessageW(control, TBM_SETRANGE, TRUE, MAKELPARAM(0, 100));
    SendMessageW(control, TBM_SETSEL, TRUE, MAKELPARAM(10, 90));
    if (CZoRangeSliderCtrl* slider = dynamic_cast<CZoRangeSliderCtrl*>(CWnd::FromHandlePermanent(control)))
        Click(control, slider->GetLeftBoundPt());
    PressKey(control, VK_RIGHT);
}

// ---------------------------------------------------------------- variants asking for what is not there

const wchar_t kNoSuchSkin[] = L"BMP_ZO_NO_SUCH_SKIN";

class CButtonWithoutSkin : public CZoButton
{
protected:
    CString GetBackgroundResourceId() override { return kNoSuchSkin; }
};

// Missing strips, strips cut into no rows or into more rows than pixels, rows out of range.
class CComboWithoutSkin : public CZoComboBox
{
protected:
    void GetBackBitmapResourceId(CString& name, int& rows) const override { name = kNoSuchSkin; rows = 3; }
    void GetButtonBitmapResourceId(CString& name, int& rows) const override
    {
        CZoComboBox::GetButtonBitmapResourceId(name, rows);
        rows = 0;
    }
    void GetButtonBackBitmapResourceId(CString& name, int& rows) const override
    {
        CZoComboBox::GetButtonBackBitmapResourceId(name, rows);
        rows = 100000;
    }
    int GetBackBitmapRowIndex() const override { return -7; }
    int GetButtonBitmapRowIndex() const override { return INT_MAX; }
    int GetButtonBackBitmapRowIndex() const override { return INT_MIN; }
};

class CScrollBarWithOddGap : public CZoScrollBar
{
public:
    CScrollBarWithOddGap() : CZoScrollBar((E_ScrollBarTheme)77) { }

protected:
    int GetButtonGapSize() override { return m_nCalls++ % 2 ? INT_MAX : -50; }

private:
    int m_nCalls = 0;
};

} // namespace

const std::vector<Kind>& Kinds()
{
    static const std::vector<Kind> kinds = {
        {"CZoButton",
         {BS_PUSHBUTTON, BS_DEFPUSHBUTTON, BS_CHECKBOX, BS_AUTOCHECKBOX, BS_AUTO3STATE, BS_RADIOBUTTON,
          BS_AUTORADIOBUTTON, BS_GROUPBOX, BS_PUSHBUTTON | BS_MULTILINE | BS_LEFT, BS_OWNERDRAW},
         CreateTexted<CZoButton>, ButtonMessages(), [](HWND control) { Click(control, Middle(control)); },
         CreateTexted<CButton>},
        {"CZoFlatButton", {BS_PUSHBUTTON, BS_AUTOCHECKBOX}, CreateTexted<CZoFlatButton>, ButtonMessages(),
         [](HWND control) { Click(control, Middle(control)); }, CreateTexted<CButton>},
        {"CZoToggleButton", {BS_PUSHBUTTON, BS_AUTOCHECKBOX}, CreateTexted<CZoToggleButton>, ButtonMessages(),
         [](HWND control) { Click(control, Middle(control)); }, CreateTexted<CButton>},
        {"CZoButton4MsgBox", {BS_PUSHBUTTON, BS_DEFPUSHBUTTON}, CreateTexted<CZoButton4MsgBox>, ButtonMessages(),
         [](HWND control) { PressKey(control, VK_SPACE); }, CreateTexted<CButton>},
        {"CZoStatic",
         {SS_LEFT, SS_CENTER | SS_NOTIFY, SS_RIGHT | SS_CENTERIMAGE, SS_BITMAP, SS_ICON, SS_ETCHEDHORZ,
          SS_SUNKEN | SS_NOTIFY, SS_LEFTNOWORDWRAP | SS_ENDELLIPSIS},
         CreateTexted<CZoStatic>, StaticMessages(), [](HWND control) { Click(control, Middle(control)); },
         CreateTexted<CStatic>},
        {"CZoStaticBig", {SS_LEFT, SS_CENTER | SS_NOTIFY}, CreateTexted<CZoStaticBig>, StaticMessages(), nullptr,
         CreateTexted<CStatic>},
        {"CZoStaticHuge", {SS_RIGHT, SS_CENTERIMAGE}, CreateTexted<CZoStaticHuge>, StaticMessages(), nullptr,
         CreateTexted<CStatic>},
        {"CStaticLine", {SS_ETCHEDHORZ, SS_ETCHEDVERT, SS_LEFT}, CreateTexted<CStaticLine>,
         {Call<CStaticLine>("SetLineStyle", [](CStaticLine& line, Random& random) {
             line.SetLineStyle((CStaticLine::E_StaticLine_Style)(random.Below(8) - 2));
         })},
         nullptr, CreateTexted<CStatic>},
        {"CZoScrollBar", {SBS_HORZ, SBS_VERT, SBS_HORZ | SBS_BOTTOMALIGN}, CreateScrollBar<CZoScrollBar::ScrollBarTheme_0>,
         ScrollBarMessages(), [](HWND control) { Click(control, POINT{3, 3}); }, CreatePlain<CScrollBar>},
        {"CZoScrollBar theme 1", {SBS_VERT}, CreateScrollBar<CZoScrollBar::ScrollBarTheme_1>, ScrollBarMessages(),
         [](HWND control) { Click(control, POINT{3, 3}); }, CreatePlain<CScrollBar>},
        {"CZoProgressCtrl", {0, PBS_VERTICAL, PBS_SMOOTH, PBS_MARQUEE}, CreatePlain<CZoProgressCtrl>,
         ProgressMessages(), nullptr, CreatePlain<CProgressCtrl>},
        {"CZoSpinButtonCtrl", {UDS_ARROWKEYS, UDS_HORZ, UDS_WRAP | UDS_SETBUDDYINT, UDS_ALIGNRIGHT | UDS_AUTOBUDDY},
         CreatePlain<CZoSpinButtonCtrl>, SpinMessages(), [](HWND control) { Click(control, POINT{2, 2}); },
         CreatePlain<CSpinButtonCtrl>},
        {"CSeparatorWnd", {0, 1, 2, 3}, CreateSeparator,
         {Call<CSeparatorWnd>("SetBoundaryOnScreen",
                              [](CSeparatorWnd& bar, Random& random) {
                                  const RECT limit = {Extreme(random), Extreme(random), Extreme(random), Extreme(random)};
                                  bar.SetBoundaryOnScreen(random.OneIn(5) ? NULL : &limit);
                              })},
         [](HWND control) { Click(control, POINT{1, 1}); }},
        // Single-line edits scroll: Wine's edit without ES_AUTOHSCROLL corrupts its heap when text is
        // inserted into a text wider than the box (WM_SETTEXT, then EM_REPLACESEL), the platform's own too.
        {"CZoEdit",
         {ES_AUTOHSCROLL, ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL, ES_READONLY | ES_AUTOHSCROLL,
          ES_PASSWORD | ES_AUTOHSCROLL, ES_NUMBER | WS_BORDER | ES_AUTOHSCROLL},
         CreatePlain<CZoEdit>, EditMessages(), [](HWND control) { PressKey(control, 'X'); SendMessageW(control, WM_CHAR, 'x', 1); },
         CreatePlain<CEdit>, true},
        {"CZoEditInPlace", {ES_AUTOHSCROLL, ES_AUTOHSCROLL | WS_BORDER}, CreateInPlaceEditor, EditMessages(),
         [](HWND control) { PressKey(control, VK_DOWN); SetFocus(GetParent(control)); }, CreatePlain<CEdit>,
         true},
        {"CZoComboBox",
         {CBS_DROPDOWN | WS_VSCROLL, CBS_DROPDOWNLIST | WS_VSCROLL, CBS_SIMPLE, CBS_DROPDOWNLIST | CBS_SORT,
          CBS_DROPDOWN | CBS_AUTOHSCROLL, CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS},
         CreatePlain<CZoComboBox>, ComboMessages(), ProvokeCombo, CreatePlain<CComboBox>},
        {"CZoComboBoxBtnFeel", {CBS_DROPDOWN, CBS_DROPDOWNLIST}, CreatePlain<CZoComboBoxBtnFeel>, ComboMessages(),
         ProvokeCombo, CreatePlain<CComboBox>},
        {"CZoComboBoxTextDark", {CBS_DROPDOWN, CBS_DROPDOWNLIST}, CreatePlain<CZoComboBoxTextDark>, ComboMessages(),
         ProvokeCombo, CreatePlain<CComboBox>},
        {"CZoSliderCtrl",
         {TBS_HORZ | TBS_AUTOTICKS, TBS_VERT | TBS_BOTH, TBS_ENABLESELRANGE | TBS_AUTOTICKS, TBS_NOTICKS, TBS_TOP,
          TBS_VERT | TBS_LEFT | TBS_AUTOTICKS, TBS_HORZ | TBS_REVERSED | TBS_DOWNISLEFT},
         CreatePlain<CZoSliderCtrl>, SliderMessages(), [](HWND control) { PressKey(control, VK_RIGHT); },
         CreatePlain<CSliderCtrl>},
        {"CZoRangeSliderCtrl",
         {TBS_ENABLESELRANGE | TBS_BOTH | TBS_AUTOTICKS, TBS_ENABLESELRANGE, TBS_ENABLESELRANGE | TBS_NOTICKS,
          TBS_ENABLESELRANGE | TBS_VERT},
         CreatePlain<CZoRangeSliderCtrl>, RangeSliderMessages(), ProvokeRangeSlider, CreatePlain<CSliderCtrl>},
        {"CZoTabCtrl",
         {0, TCS_BOTTOM, TCS_VERTICAL, TCS_VERTICAL | TCS_RIGHT, TCS_BUTTONS, TCS_MULTILINE,
          TCS_FIXEDWIDTH | TCS_FORCELABELLEFT, TCS_OWNERDRAWFIXED},
         CreatePlain<CZoTabCtrl>, TabMessages(), ProvokeTabs, CreatePlain<CTabCtrl>},
        {"CZoHeaderCtrl", {HDS_BUTTONS | HDS_HORZ, HDS_DRAGDROP | HDS_FULLDRAG | HDS_BUTTONS, HDS_HOTTRACK},
         CreatePlain<CZoHeaderCtrl>, HeaderMessages(), ProvokeHeader, CreatePlain<CHeaderCtrl>},
        {"CZoListCtrl",
         {LVS_REPORT | LVS_EDITLABELS, LVS_REPORT | LVS_OWNERDATA, LVS_ICON, LVS_LIST, LVS_SMALLICON,
          LVS_REPORT | LVS_NOCOLUMNHEADER, LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | WS_BORDER},
         CreatePlain<CZoListCtrl>, ListMessages(), ProvokeList, CreatePlain<CListCtrl>},
        {"CZoTreeListCtrl", {LVS_REPORT | LVS_SHOWSELALWAYS, LVS_REPORT | LVS_EDITLABELS | WS_BORDER},
         CreatePlain<CZoTreeListCtrl>, TreeListMessages(), ProvokeTree, CreatePlain<CListCtrl>},
    };
    return kinds;
}

const std::vector<Kind>& KindsWithMissingSkins()
{
    static const std::vector<Kind> kinds = {
        {"CZoButton without its skin", {BS_PUSHBUTTON, BS_AUTOCHECKBOX}, CreateTexted<CButtonWithoutSkin>,
         ButtonMessages(), nullptr},
        {"CZoComboBox with missing and empty cells", {CBS_DROPDOWN, CBS_DROPDOWNLIST}, CreatePlain<CComboWithoutSkin>,
         ComboMessages(), nullptr},
        {"CZoScrollBar with an odd theme and gap", {SBS_HORZ, SBS_VERT}, CreatePlain<CScrollBarWithOddGap>,
         ScrollBarMessages(), nullptr},
    };
    return kinds;
}

} // namespace hostile
