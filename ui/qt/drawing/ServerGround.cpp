// ServerGround.cpp: sends a small picture and has it stretched by the Render extension.
#include "ui/qt/drawing/ServerGround.h"

#include <QImage>
#include <QWindow>

#include "ui/qt/platform/X11.h"

#ifdef MALVONE_XCB
#include <xcb/render.h>

#include <algorithm>
#include <string_view>
#endif

namespace malvone::qt {

#ifdef MALVONE_XCB
namespace {

// What the server says of a window.
struct Target
{
    xcb_window_t Window = XCB_NONE;
    std::uint8_t Depth = 0;
    std::uint16_t Width = 0;
    std::uint16_t Height = 0;
    xcb_render_pictformat_t Format = XCB_NONE;
};

// How many bits of the wire a pixel of a depth takes.
int BitsOf(const xcb_setup_t& setup, std::uint8_t depth)
{
    const xcb_format_t* const formats = xcb_setup_pixmap_formats(&setup);
    const int count = xcb_setup_pixmap_formats_length(&setup);
    const auto* const found = std::find_if(
        formats, formats + count, [depth](const xcb_format_t& f) { return f.depth == depth; });
    return found == formats + count ? 0 : found->bits_per_pixel;
}

// Without a format where the server does not take pixels as QImage's RGB32 has them.
Target Asked(xcb_connection_t* connection, xcb_window_t window)
{
    const auto geometryAsked = xcb_get_geometry(connection, window);
    const auto formatsAsked = xcb_render_query_pict_formats(connection);
    const Answer<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection, geometryAsked, nullptr));
    const Answer<xcb_render_query_pict_formats_reply_t> formats(
        xcb_render_query_pict_formats_reply(connection, formatsAsked, nullptr));
    const xcb_setup_t& setup = *xcb_get_setup(connection);
    const bool sameBytes =
        setup.image_byte_order ==
        (Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? XCB_IMAGE_ORDER_LSB_FIRST : XCB_IMAGE_ORDER_MSB_FIRST);
    if (!geometry || !formats || !sameBytes || BitsOf(setup, geometry->depth) != 32) {
        return {};
    }
    const xcb_render_pictforminfo_t* const all =
        xcb_render_query_pict_formats_formats(formats.get());
    const int count = xcb_render_query_pict_formats_formats_length(formats.get());
    const auto* const found =
        std::find_if(all, all + count, [&](const xcb_render_pictforminfo_t& format) {
            const xcb_render_directformat_t& direct = format.direct;
            return format.depth == geometry->depth && format.type == XCB_RENDER_PICT_TYPE_DIRECT &&
                   direct.red_shift == 16 && direct.green_shift == 8 && direct.blue_shift == 0 &&
                   direct.red_mask == 0xFF && direct.green_mask == 0xFF && direct.blue_mask == 0xFF;
        });
    return found == all + count
               ? Target()
               : Target{window, geometry->depth, geometry->width, geometry->height, found->id};
}

bool CanStretch(xcb_connection_t* connection)
{
    const xcb_query_extension_reply_t* const render =
        xcb_get_extension_data(connection, &xcb_render_id);
    return render != nullptr && render->present != 0;
}

// A picture on the server, sent in pieces that any server takes.
xcb_pixmap_t Sent(xcb_connection_t* connection, const Target& target, const QImage& picture)
{
    constexpr int kPiece = 200000;
    const auto width = static_cast<std::uint16_t>(picture.width());
    const xcb_pixmap_t pixmap = xcb_generate_id(connection);
    xcb_create_pixmap(connection, target.Depth, pixmap, target.Window, width,
                      static_cast<std::uint16_t>(picture.height()));
    const xcb_gcontext_t context = xcb_generate_id(connection);
    xcb_create_gc(connection, context, pixmap, 0, nullptr);
    const int bytes = static_cast<int>(picture.bytesPerLine());
    const int lines = std::max(1, kPiece / bytes);
    for (int y = 0; y < picture.height(); y += lines) {
        const int count = std::min(lines, picture.height() - y);
        xcb_put_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context, width,
                      static_cast<std::uint16_t>(count), 0, static_cast<std::int16_t>(y), 0,
                      target.Depth, static_cast<std::uint32_t>(count * bytes),
                      picture.constScanLine(y));
    }
    xcb_free_gc(connection, context);
    return pixmap;
}

xcb_render_fixed_t ToFixed(int part, int whole)
{
    return static_cast<xcb_render_fixed_t>(65536.0 * part / whole);
}

// A picture on the server as large as the target.
xcb_pixmap_t Stretched(xcb_connection_t* connection, const Target& target, const QImage& picture)
{
    constexpr std::string_view kSmooth = "bilinear";
    const std::uint32_t padded = XCB_RENDER_REPEAT_PAD;
    const xcb_pixmap_t small = Sent(connection, target, picture);
    const xcb_pixmap_t large = xcb_generate_id(connection);
    xcb_create_pixmap(connection, target.Depth, large, target.Window, target.Width, target.Height);
    const xcb_render_picture_t from = xcb_generate_id(connection);
    const xcb_render_picture_t onto = xcb_generate_id(connection);
    xcb_render_create_picture(connection, from, small, target.Format, XCB_RENDER_CP_REPEAT,
                              &padded);
    xcb_render_create_picture(connection, onto, large, target.Format, 0, nullptr);
    xcb_render_set_picture_transform(connection, from,
                                     {ToFixed(picture.width(), target.Width), 0, 0, 0,
                                      ToFixed(picture.height(), target.Height), 0, 0, 0,
                                      ToFixed(1, 1)});
    xcb_render_set_picture_filter(connection, from, kSmooth.size(), kSmooth.data(), 0, nullptr);
    xcb_render_composite(connection, XCB_RENDER_PICT_OP_SRC, from, XCB_NONE, onto, 0, 0, 0, 0, 0, 0,
                         target.Width, target.Height);
    xcb_render_free_picture(connection, from);
    xcb_render_free_picture(connection, onto);
    xcb_free_pixmap(connection, small);
    return large;
}

}  // namespace
#endif

bool ColourOnServer(QWindow& window, QRgb colour)
{
#ifdef MALVONE_XCB
    xcb_connection_t* const connection = X11Connection();
    if (connection == nullptr || !CanStretch(connection)) {
        return false;
    }
    const Target target = Asked(connection, static_cast<xcb_window_t>(window.winId()));
    if (target.Format == XCB_NONE) {
        return false;
    }
    xcb_change_window_attributes(connection, target.Window, XCB_CW_BACK_PIXEL, &colour);
    return true;
#else
    static_cast<void>(window);
    static_cast<void>(colour);
    return false;
#endif
}

void PaintOnServer(QWindow& window, const QImage& picture)
{
#ifdef MALVONE_XCB
    xcb_connection_t* const connection = X11Connection();
    const Target target = Asked(connection, static_cast<xcb_window_t>(window.winId()));
    if (target.Format == XCB_NONE) {
        return;
    }
    const xcb_pixmap_t ground =
        Stretched(connection, target, picture.convertToFormat(QImage::Format_RGB32));
    xcb_change_window_attributes(connection, target.Window, XCB_CW_BACK_PIXMAP, &ground);
    xcb_free_pixmap(connection, ground);  // the window keeps it
    xcb_clear_area(connection, 0, target.Window, 0, 0, 0, 0);
#else
    static_cast<void>(window);
    static_cast<void>(picture);
#endif
}

}  // namespace malvone::qt
