// Pictures.cpp: the names and sizes of all pictures.
#include "ui/windows/Pictures.h"

#include <algorithm>
#include <cassert>

namespace malvone {
namespace {

constexpr PictureInfo kPictures[] = {
    {"frmBilder.imgBild(0)", 32, 32},
    {"frmBilder.imgBild(1)", 32, 32},
    {"frmBilder.imgBild(2)", 32, 32},
    {"frmBilder.imgBild(3)", 32, 32},
    {"frmBilder.imgBild(4)", 32, 32},
    {"frmBilder.imgVorschau(0)", 32, 32},
    {"frmBilder.imgVorschau(1)", 32, 32},
    {"frmBilder.imgVorschau(2)", 32, 32},
    {"frmBilder.imgVorschau(3)", 32, 32},
    {"frmBilder.imgVorschau(4)", 32, 32},
    {"frmBilder.imgNeutral(0)", 32, 32},
    {"frmBilder.imgNeutral(1)", 32, 32},
    {"frmBilder.imgNeutral(2)", 32, 32},
    {"frmBilder.imgNeutral(3)", 32, 32},
    {"frmBilder.imgNeutral(4)", 32, 32},
    {"frmBilder.imgGrund", 32, 32},
    {"frmBilder.imgPfeil(0)", 33, 24},
    {"frmBilder.imgPfeil(1)", 33, 24},
    {"frmBilder.cmdHilfeAuswahl", 96, 42},
    {"frmBilder.cmdHilfeGruen", 96, 42},
    {"frmBilder.cmdBeschreibungenAuswahl", 96, 42},
    {"frmBilder.cmdBeschreibungenFruen", 96, 42},
    {"frmDigital.imgDiggi(0)", 14, 28},
    {"frmDigital.imgDiggi(1)", 14, 28},
    {"frmDigital.imgDiggi(2)", 14, 28},
    {"frmDigital.imgDiggi(3)", 14, 28},
    {"frmDigital.imgDiggi(4)", 14, 28},
    {"frmDigital.imgDiggi(5)", 14, 28},
    {"frmDigital.imgDiggi(6)", 14, 28},
    {"frmDigital.imgDiggi(7)", 14, 28},
    {"frmDigital.imgDiggi(8)", 14, 28},
    {"frmDigital.imgDiggi(9)", 14, 28},
    {"frmDigital.imgDiggi(10)", 14, 28},
    {"frmTessel", 1000, 800},
    {"frmTessel.Icon", 32, 32},
    {"frmTessel.Picture1", 866, 580},
    {"frmTessel.Image1", 200, 96},
    {"frmTessel.Image3", 191, 42},
    {"frmTessel.Image4", 191, 42},
    {"frmTessel.Image6", 191, 42},
    {"frmTessel.imgNaechsterLevel", 191, 42},
    {"frmTessel.imgWiederholen", 191, 42},
    {"frmHintergrund.Image1", 643, 647},
    {"frmMsgJa", 392, 237},
    {"frmMsgJa.Image1", 32, 32},
    {"frmMsgOk", 392, 237},
    {"frmMsgOk.Image2", 16, 16},
    {"frmBeste", 650, 450},
    {"frmBeste.Icon", 32, 32},
    {"frmBeste.cmdEnde", 143, 33},
    {"frmBeste.lblTessel", 147, 35},
};

}  // namespace

std::span<const PictureInfo> AllPictures()
{
    return kPictures;
}

Picture PictureNamed(std::string_view name)
{
    const auto* const found = std::find_if(std::begin(kPictures), std::end(kPictures),
                                           [&](const PictureInfo& p) { return p.Name == name; });
    assert(found != std::end(kPictures));
    return found == std::end(kPictures) ? Picture() : Picture(*found);
}

}  // namespace malvone
