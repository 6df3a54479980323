#pragma once

#include <QIcon>
#include <QPixmap>

// The console's pictures, from the resources the build draws (see art/art_drawing.h). Each is
// loaded on first use and kept in QPixmapCache, so it goes away with the application instead of
// outliving it as a static pixmap would.
namespace ProductArt {

// The tree's images, numbered as in the console's image table (1-based).
enum class TreeImage : int {
    Server = 1,
    OSCollect,
    Apps,
    TransGroup,
    CloseFolder,
    Data,
    ID,
    OpenFolder,
    SLA,
    SpecRun,
    Trans,
};
inline constexpr int TreeImageCount = 11;

inline constexpr QSize SplashSize(521, 396);
inline constexpr QSize AboutPictureSize(145, 202);
// 48 pixels: large enough for the gauge to read, small enough for a page header.
inline constexpr QSize PageLogoSize(48, 48);
inline constexpr QSize TreeImageSize(16, 16);

QPixmap splash();
QPixmap aboutPicture();
QPixmap pageLogo();
// 16, 32 and 48 pixels.
QIcon appIcon();
QPixmap treeImage(TreeImage image);

} // namespace ProductArt
