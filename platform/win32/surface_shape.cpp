// The shape of the control's window: round corners, what the host cuts off, and the ground that shows around it.
#include "platform/win32/colours.h"
#include "platform/win32/control_surface.h"
#include "platform/win32/device_context.h"
#include "platform/win32/owners.h"

#include <utility>

namespace vela::win32 {
namespace {

UniqueGdi<HRGN> plainShape(const engine::RectPixels& client) noexcept
{
    return UniqueGdi<HRGN>(CreateRectRgn(0, 0, client.width, client.height));
}

// A rounded region leaves out its last row and column.
UniqueGdi<HRGN> roundShape(const engine::RectPixels& client, int radius) noexcept
{
    return UniqueGdi<HRGN>(CreateRoundRectRgn(0, 0, client.width + 1, client.height + 1, radius * 2, radius * 2));
}

} // namespace

void ControlSurface::clip(std::optional<RECT> shown)
{
    clip_ = shown;
    applyRegion();
}

void ControlSurface::putGround(engine::Colour colour)
{
    if (colour == std::exchange(ground_, colour))
        return;
    if (layout_.cornerRadius > 0)
        repaint();
}

// The round corners and the host's clip are one region.
void ControlSurface::applyRegion()
{
    if (!window_)
        return;
    const bool round = layout_.cornerRadius > 0;
    if (!round && !clip_) {
        if (std::exchange(shaped_, false))
            SetWindowRgn(window_, nullptr, TRUE);
        return;
    }
    const engine::RectPixels client = clientRect();
    UniqueGdi<HRGN> shape = round ? roundShape(client, layout_.cornerRadius) : plainShape(client);
    if (clip_) {
        const UniqueGdi<HRGN> cut(CreateRectRgnIndirect(&*clip_));
        CombineRgn(shape.get(), shape.get(), cut.get(), RGN_AND);
    }
    shaped_ = SetWindowRgn(window_, shape.release(), TRUE) != 0; // the system owns it from then on
}

// What the round corners leave free is the parent's, and not every parent paints under its children: it is given the
// ground's colour, and the parent may erase it its own way.
void ControlSurface::paintCorners() const
{
    const HWND parent = GetAncestor(window_, GA_PARENT);
    if (!parent || parent == GetDesktopWindow())
        return;
    const engine::RectPixels client = clientRect();
    const UniqueGdi<HRGN> corners = plainShape(client);
    const UniqueGdi<HRGN> round = roundShape(client, layout_.cornerRadius);
    CombineRgn(corners.get(), corners.get(), round.get(), RGN_DIFF);
    if (clip_) {
        const UniqueGdi<HRGN> cut(CreateRectRgnIndirect(&*clip_));
        CombineRgn(corners.get(), corners.get(), cut.get(), RGN_AND);
    }
    POINT corner{0, 0};
    MapWindowPoints(window_, parent, &corner, 1);
    OffsetRgn(corners.get(), corner.x, corner.y);
    const WindowDc dc(parent);
    const SavedDc saved(dc.get());
    ExtSelectClipRgn(dc.get(), corners.get(), RGN_AND);
    const UniqueGdi<HBRUSH> ground(CreateSolidBrush(resolve(ground_, ColourRole::face)));
    FillRgn(dc.get(), corners.get(), ground.get());
    SendMessageW(parent, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.get()), 0);
}

} // namespace vela::win32
