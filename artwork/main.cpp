#include "artwork/Background.h"
#include "artwork/Buttons.h"
#include "artwork/Controls.h"
#include "artwork/Emblems.h"
#include "artwork/IconSource.h"
#include "artwork/Logo.h"
#include "artwork/Quantiser.h"
#include "artwork/Strips.h"

#include <QDir>
#include <QGuiApplication>
#include <cstdio>

namespace {

using artwork::Transparency;

bool Save(const QString& folder, const QString& name, const QImage& image, Transparency transparency)
{
    const QString path = folder + '/' + name;
    bool saved = artwork::WriteBmp(path + ".bmp", artwork::Quantise(image, transparency));
    if (transparency == Transparency::Companion)
        saved = artwork::WriteBmp(path + "a.bmp", artwork::AlphaPlane(image)) && saved;
    if (!saved)
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
    return saved;
}

// The editor looks for these in its current folder, which opening a picture moves to Image/.
bool SaveControls(const QString& folder)
{
    bool saved = Save(folder, "ro_chkbox", artwork::PaintCheckBoxes(), Transparency::GreenKey);
    saved = Save(folder, "EditBox", artwork::PaintEditBox(), Transparency::GreenKey) && saved;
    saved = Save(folder, "upbutton", artwork::PaintArrowButtons(true), Transparency::GreenKey) && saved;
    return Save(folder, "downbutton", artwork::PaintArrowButtons(false), Transparency::GreenKey) && saved;
}

bool SaveSamples(const QString& folder)
{
    bool saved = Save(folder, "Basic_background", artwork::PaintBackground(), Transparency::None);
    saved = Save(folder, "logo", artwork::PaintLogo(), Transparency::Companion) && saved;
    saved = Save(folder, "gem", artwork::PaintGem(), Transparency::GreenKey) && saved;
    saved = Save(folder, "portrait", artwork::PaintPortrait(), Transparency::Companion) && saved;
    saved = Save(folder, "note", artwork::PaintNote(), Transparency::Companion) && saved;
    saved = Save(folder, "start@", artwork::PaintStartButtons(), Transparency::Companion) && saved;
    saved = Save(folder, "menu!", artwork::PaintMenuButtons(), Transparency::Companion) && saved;
    saved = Save(folder, "torch", artwork::PaintTorch(), Transparency::Companion) && saved;
    return Save(folder, "wheel", artwork::PaintWheel(), Transparency::Companion) && saved;
}

// The icon in the sizes that a desktop's menus look for; artwork/icon.svg is the one for all other sizes.
bool SaveIcons(const QString& folder)
{
    bool saved = true;
    for (const int size : { 16, 32, 48, 256 })
        saved = artwork::PaintIcon(size).save(QString("%1/%2.png").arg(folder).arg(size)) && saved;
    return saved;
}

} // namespace

// Takes three folders: where the pictures go, where the icons' source goes, and where the icons' files go.
int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    if (argc != 4) {
        std::fprintf(stderr, "usage: tobrik_artwork WORKSPACE RESOURCES ICONS\n");
        return 2;
    }
    const QString workspace = QString::fromLocal8Bit(argv[1]);
    const QString images = workspace + "/Image";
    const QString icons = QString::fromLocal8Bit(argv[3]);
    const bool saved = QDir().mkpath(images) && QDir().mkpath(icons) && SaveSamples(images) && SaveControls(images)
        && SaveControls(workspace) && artwork::WriteIconSource(QString::fromLocal8Bit(argv[2])) && SaveIcons(icons);
    return saved ? 0 : 1;
}
