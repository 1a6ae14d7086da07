#include "qt/QtPictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QRandomGenerator>
#include <QTemporaryDir>

namespace tessarine {
namespace {

// Little-endian fields of `width` bytes each.
QByteArray Fields(std::initializer_list<std::pair<quint32, int>> fields) {
  QByteArray bytes;
  for (const auto& [value, width] : fields) {
    for (int i = 0; i < width; ++i) bytes.append(static_cast<char>(i < 4 ? value >> (8 * i) : 0));
  }
  return bytes;
}

// Picture files that the braille inserter and Wingfall may be given, made here: three whose
// header claims a picture of 9000 by 9000 or 65535 by 65535 pixels, a BMP, a JPEG and a GIF
// cut off before their end, and random bytes. Each is refused with a sentence, never decoded into a picture;
// whole ones are read, also a BMP of a single pixel in the old, short header (30 bytes in all),
// and a JPEG and a GIF followed by bytes of something else.
TEST(PictureFilesTest, AHugeCutOrMeaninglessPictureIsRefusedFromItsHeader) {
  QByteArray cut;
  QBuffer buffer(&cut);
  QImage picture(64, 64, QImage::Format_RGB32);
  picture.fill(Qt::darkGreen);
  picture.save(&buffer, "BMP");
  const QByteArray whole = cut;
  QByteArray hugeJpeg;  // a whole JPEG whose frame header then claims 60000 by 60000 pixels
  QBuffer jpegBuffer(&hugeJpeg);
  picture.save(&jpegBuffer, "JPG");
  const QByteArray cutJpeg = hugeJpeg.left(hugeJpeg.size() - 4), wholeJpeg = hugeJpeg;
  hugeJpeg.replace(hugeJpeg.indexOf("\xFF\xC0") + 5, 4, QByteArray::fromHex("EA60EA60"));
  cut.truncate(cut.size() / 2);
  // A GIF of one pixel in a palette of two colours, whole.
  const QByteArray dot = "GIF89a" + Fields({{1, 2}, {1, 2}, {0x80, 1}, {0, 2}, {0xFFFFFF, 6}}) + "," +
                         Fields({{0, 4}, {1, 2}, {1, 2}, {0, 1}}) + Fields({{2, 1}, {0x014C02, 3}, {0, 1}}) + ";";
  QByteArray noise(4096, '\0');
  QRandomGenerator(14).fillRange(reinterpret_cast<quint32*>(noise.data()), noise.size() / 4);
  const struct {
    const char* name;
    QByteArray bytes;
    const char* problem;
  } rows[] = {
      {"huge.bmp", "BM" + Fields({{0, 4}, {0, 4}, {54, 4}, {40, 4}, {9000, 4}, {9000, 4}, {1, 2}, {24, 2}, {0, 24}}),
       "9000 by 9000"},
      {"huge.gif", "GIF89a" + Fields({{65535, 2}, {65535, 2}, {0, 3}}) + "," + Fields({{0, 4}, {65535, 2}, {65535, 2}, {0, 1}}) +
                       Fields({{2, 1}, {0x014C02, 3}, {0, 1}}) + ";",
       "65535 by 65535"},
      {"huge.jpg", hugeJpeg, "60000 by 60000"},
      {"cut.bmp", cut, "\"cut.bmp\" is cut short"},
      {"cut.jpg", cutJpeg, "\"cut.jpg\" is cut short"},
      {"cut.gif", dot.left(dot.size() - 3), "\"cut.gif\" is cut short"},
      {"cut4.gif", "GIF89a" + Fields({{4, 2}, {4, 2}, {0x80, 1}, {0, 2}, {0xFFFFFF, 6}}) + "," +  // ends in the
                       Fields({{0, 4}, {4, 2}, {4, 2}, {0, 1}}) + Fields({{2, 1}, {0x4C01, 2}}) + ";",  // size of a block
       "\"cut4.gif\" is cut short"},
      {"dot.gif", dot + "\n", ""},
      {"more.jpg", wholeJpeg + QByteArray::fromHex("FFDA0008"), ""},
      {"noise.gif", noise, "\"noise.gif\" is no picture"},
      {"whole.bmp", whole, ""},  // and the BMP before it was cut is read
      {"dot.bmp", "BM" + Fields({{30, 4}, {0, 4}, {26, 4}, {12, 4}, {1, 2}, {1, 2}, {1, 2}, {24, 2}, {0xFF, 4}}), ""},
  };
  QTemporaryDir folder;
  for (const auto& row : rows) {
    QFile file(folder.filePath(row.name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(row.bytes) == row.bytes.size());
    file.close();
    const PictureFile picture = LoadPictureFile(file.fileName());
    EXPECT_EQ(picture.image.isNull(), *row.problem != '\0') << row.name;
    EXPECT_THAT(picture.problem.toStdString(), ::testing::HasSubstr(row.problem)) << row.name;
  }
}

}  // namespace
}  // namespace tessarine
