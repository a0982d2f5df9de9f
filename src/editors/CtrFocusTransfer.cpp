#include "editors/CtrFocusTransfer.h"

#include "framework/steps.h"

namespace quill {

namespace {

constexpr platform::Color kGuideColor = 0xe3ffff;

} // namespace

CtrFocusTransfer::CtrFocusTransfer(const platform::Design& design) : Control(design)
{
    start();
}

CtrFocusTransfer::CtrFocusTransfer(platform::Widget& container, const platform::Design& design)
    : Control(container, design)
{
    start();
}

CtrFocusTransfer::~CtrFocusTransfer()
{
    mOnGotFocus.drop();
    mMessenger = nullptr;
}

void CtrFocusTransfer::start()
{
    const auto fill = [this] {
        lblGuide.Width  = Width.get();
        lblGuide.Height = Height.get();
    };
    fill();
    lblGuide.BackColor = kGuideColor;
    mOnResize          = Resize.subscribe(fill);
    mOnGotFocus        = GotFocus.subscribe([this] {
        if (mMessenger != nullptr) {
            const Steps step{mMessenger, "CtrFocusTransfer UserControl_GotFocus"};
            step([&] { mMessenger->TransferFocus(); });
        }
    });
}

} // namespace quill
