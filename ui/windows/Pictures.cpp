// Pictures.cpp: the names, files and sizes of all pictures.
#include "ui/windows/Pictures.h"

#include <algorithm>
#include <cassert>

namespace malvone {
namespace {

// Pictures that look alike share a file.
constexpr PictureInfo kPictures[] = {
    {"frmBilder.imgBild(0)", "tile", 32, 32},
    {"frmBilder.imgBild(1)", "stone-1", 32, 32},
    {"frmBilder.imgBild(2)", "stone-2", 32, 32},
    {"frmBilder.imgBild(3)", "stone-3", 32, 32},
    {"frmBilder.imgBild(4)", "stone-4", 32, 32},
    {"frmBilder.imgVorschau(0)", "tile", 32, 32},
    {"frmBilder.imgVorschau(1)", "stone-1-laughing", 32, 32},
    {"frmBilder.imgVorschau(2)", "stone-2-laughing", 32, 32},
    {"frmBilder.imgVorschau(3)", "stone-3-laughing", 32, 32},
    {"frmBilder.imgVorschau(4)", "stone-4-laughing", 32, 32},
    {"frmBilder.imgNeutral(0)", "tile", 32, 32},
    {"frmBilder.imgNeutral(1)", "stone-1-neutral", 32, 32},
    {"frmBilder.imgNeutral(2)", "stone-2-neutral", 32, 32},
    {"frmBilder.imgNeutral(3)", "stone-3-neutral", 32, 32},
    {"frmBilder.imgNeutral(4)", "stone-4-neutral", 32, 32},
    {"frmBilder.imgGrund", "tile", 32, 32},
    {"frmBilder.imgPfeil(0)", "arrow-red", 33, 24},
    {"frmBilder.imgPfeil(1)", "arrow-yellow", 33, 24},
    {"frmBilder.cmdHilfeAuswahl", "hilfe", 96, 42},
    {"frmBilder.cmdHilfeGruen", "hilfe-pressed", 96, 42},
    {"frmBilder.cmdBeschreibungenAuswahl", "info", 96, 42},
    {"frmBilder.cmdBeschreibungenFruen", "info-pressed", 96, 42},
    {"frmDigital.imgDiggi(0)", "digit-0", 14, 28},
    {"frmDigital.imgDiggi(1)", "digit-1", 14, 28},
    {"frmDigital.imgDiggi(2)", "digit-2", 14, 28},
    {"frmDigital.imgDiggi(3)", "digit-3", 14, 28},
    {"frmDigital.imgDiggi(4)", "digit-4", 14, 28},
    {"frmDigital.imgDiggi(5)", "digit-5", 14, 28},
    {"frmDigital.imgDiggi(6)", "digit-6", 14, 28},
    {"frmDigital.imgDiggi(7)", "digit-7", 14, 28},
    {"frmDigital.imgDiggi(8)", "digit-8", 14, 28},
    {"frmDigital.imgDiggi(9)", "digit-9", 14, 28},
    {"frmDigital.imgDiggi(10)", "digit-blank", 14, 28},
    {"frmTessel", "ground-tessel", 1000, 800},
    {"frmTessel.Icon", "icon-tessel", 32, 32},
    {"frmTessel.Picture1", "frame", 866, 580},
    {"frmTessel.Image1", "fields", 200, 96},
    {"frmTessel.Image3", "panel-punkte", 191, 42},
    {"frmTessel.Image4", "panel-level", 191, 42},
    {"frmTessel.Image6", "panel-levelpunkte", 191, 42},
    {"frmTessel.imgNaechsterLevel", "naechster-level", 191, 42},
    {"frmTessel.imgWiederholen", "wiederholen", 191, 42},
    {"frmHintergrund.Image1", "hintergrund", 643, 647},
    {"frmMsgJa", "ground-msgja", 392, 237},
    {"frmMsgJa.Image1", "close", 32, 32},
    {"frmMsgOk", "ground-msgok", 392, 237},
    {"frmMsgOk.Image2", "close", 16, 16},
    {"frmBeste", "ground-beste", 650, 450},
    {"frmBeste.Icon", "icon-beste", 32, 32},
    {"frmBeste.cmdEnde", "beste-ok", 143, 33},
    {"frmBeste.lblTessel", "beste-loeschen", 147, 35},
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
