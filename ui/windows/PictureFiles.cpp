// PictureFiles.cpp: the table of pictures and their files.
#include "ui/windows/PictureFiles.h"

#include <algorithm>

namespace malvone {
namespace {

constexpr PictureFile kFiles[] = {
    {"frmBilder.imgBild(0)", "kachel"},
    {"frmBilder.imgBild(1)", "stein-1"},
    {"frmBilder.imgBild(2)", "stein-2"},
    {"frmBilder.imgBild(3)", "stein-3"},
    {"frmBilder.imgBild(4)", "stein-4"},
    {"frmBilder.imgVorschau(0)", "kachel"},
    {"frmBilder.imgVorschau(1)", "stein-1-lacht"},
    {"frmBilder.imgVorschau(2)", "stein-2-lacht"},
    {"frmBilder.imgVorschau(3)", "stein-3-lacht"},
    {"frmBilder.imgVorschau(4)", "stein-4-lacht"},
    {"frmBilder.imgNeutral(0)", "kachel"},
    {"frmBilder.imgNeutral(1)", "stein-1-neutral"},
    {"frmBilder.imgNeutral(2)", "stein-2-neutral"},
    {"frmBilder.imgNeutral(3)", "stein-3-neutral"},
    {"frmBilder.imgNeutral(4)", "stein-4-neutral"},
    {"frmBilder.imgGrund", "kachel"},
    {"frmBilder.imgPfeil(0)", "pfeil-rot"},
    {"frmBilder.imgPfeil(1)", "pfeil-gelb"},
    {"frmBilder.cmdHilfeAuswahl", "hilfe"},
    {"frmBilder.cmdHilfeGruen", "hilfe-gedrueckt"},
    {"frmBilder.cmdBeschreibungenAuswahl", "info"},
    {"frmBilder.cmdBeschreibungenFruen", "info-gedrueckt"},
    {"frmDigital.imgDiggi(0)", "ziffer-0"},
    {"frmDigital.imgDiggi(1)", "ziffer-1"},
    {"frmDigital.imgDiggi(2)", "ziffer-2"},
    {"frmDigital.imgDiggi(3)", "ziffer-3"},
    {"frmDigital.imgDiggi(4)", "ziffer-4"},
    {"frmDigital.imgDiggi(5)", "ziffer-5"},
    {"frmDigital.imgDiggi(6)", "ziffer-6"},
    {"frmDigital.imgDiggi(7)", "ziffer-7"},
    {"frmDigital.imgDiggi(8)", "ziffer-8"},
    {"frmDigital.imgDiggi(9)", "ziffer-9"},
    {"frmDigital.imgDiggi(10)", "ziffer-leer"},
    {"frmTessel", "grund-tessel"},
    {"frmTessel.Icon", "symbol-tessel"},
    {"frmTessel.Picture1", "rahmen"},
    {"frmTessel.Image1", "felder"},
    {"frmTessel.Image3", "tafel-punkte"},
    {"frmTessel.Image4", "tafel-level"},
    {"frmTessel.Image6", "tafel-levelpunkte"},
    {"frmTessel.imgNaechsterLevel", "naechster-level"},
    {"frmTessel.imgWiederholen", "wiederholen"},
    {"frmHintergrund.Image1", "hintergrund"},
    {"frmMsgJa", "grund-msgja"},
    {"frmMsgJa.Image1", "schliessen"},
    {"frmMsgOk", "grund-msgok"},
    {"frmMsgOk.Image2", "schliessen"},
    {"frmBeste", "grund-beste"},
    {"frmBeste.Icon", "symbol-beste"},
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
