// PictureFiles.cpp: the table of pictures and their files.
#include "ui/windows/PictureFiles.h"

#include <algorithm>

namespace malvone {
namespace {

constexpr PictureFile kFiles[] = {
    {"frmBilder.imgBild(0)", "tile"},
    {"frmBilder.imgBild(1)", "stone-1"},
    {"frmBilder.imgBild(2)", "stone-2"},
    {"frmBilder.imgBild(3)", "stone-3"},
    {"frmBilder.imgBild(4)", "stone-4"},
    {"frmBilder.imgVorschau(0)", "tile"},
    {"frmBilder.imgVorschau(1)", "stone-1-laughing"},
    {"frmBilder.imgVorschau(2)", "stone-2-laughing"},
    {"frmBilder.imgVorschau(3)", "stone-3-laughing"},
    {"frmBilder.imgVorschau(4)", "stone-4-laughing"},
    {"frmBilder.imgNeutral(0)", "tile"},
    {"frmBilder.imgNeutral(1)", "stone-1-neutral"},
    {"frmBilder.imgNeutral(2)", "stone-2-neutral"},
    {"frmBilder.imgNeutral(3)", "stone-3-neutral"},
    {"frmBilder.imgNeutral(4)", "stone-4-neutral"},
    {"frmBilder.imgGrund", "tile"},
    {"frmBilder.imgPfeil(0)", "arrow-red"},
    {"frmBilder.imgPfeil(1)", "arrow-yellow"},
    {"frmBilder.cmdHilfeAuswahl", "hilfe"},
    {"frmBilder.cmdHilfeGruen", "hilfe-pressed"},
    {"frmBilder.cmdBeschreibungenAuswahl", "info"},
    {"frmBilder.cmdBeschreibungenFruen", "info-pressed"},
    {"frmDigital.imgDiggi(0)", "digit-0"},
    {"frmDigital.imgDiggi(1)", "digit-1"},
    {"frmDigital.imgDiggi(2)", "digit-2"},
    {"frmDigital.imgDiggi(3)", "digit-3"},
    {"frmDigital.imgDiggi(4)", "digit-4"},
    {"frmDigital.imgDiggi(5)", "digit-5"},
    {"frmDigital.imgDiggi(6)", "digit-6"},
    {"frmDigital.imgDiggi(7)", "digit-7"},
    {"frmDigital.imgDiggi(8)", "digit-8"},
    {"frmDigital.imgDiggi(9)", "digit-9"},
    {"frmDigital.imgDiggi(10)", "digit-blank"},
    {"frmTessel", "ground-tessel"},
    {"frmTessel.Icon", "icon-tessel"},
    {"frmTessel.Picture1", "frame"},
    {"frmTessel.Image1", "fields"},
    {"frmTessel.Image3", "panel-punkte"},
    {"frmTessel.Image4", "panel-level"},
    {"frmTessel.Image6", "panel-levelpunkte"},
    {"frmTessel.imgNaechsterLevel", "naechster-level"},
    {"frmTessel.imgWiederholen", "wiederholen"},
    {"frmHintergrund.Image1", "hintergrund"},
    {"frmMsgJa", "ground-msgja"},
    {"frmMsgJa.Image1", "close"},
    {"frmMsgOk", "ground-msgok"},
    {"frmMsgOk.Image2", "close"},
    {"frmBeste", "ground-beste"},
    {"frmBeste.Icon", "icon-beste"},
    {"frmBeste.cmdEnde", "beste-ok"},
    {"frmBeste.lblTessel", "beste-loeschen"},
};

}  // namespace

std::span<const PictureFile> PictureFiles()
{
    return kFiles;
}

std::string_view FileOf(std::string_view picture)
{
    const auto* const found =
        std::find_if(std::begin(kFiles), std::end(kFiles),
                     [&](const PictureFile& row) { return row.Picture == picture; });
    return found == std::end(kFiles) ? std::string_view() : found->File;
}

}  // namespace malvone
