// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What Windows finds in the files of the project: icon, manifest and version.
#include "testclass.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QIODevice>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QtEndian>

// Names of the kinds of resources in the wide form.
#define UNICODE
#include <windows.h>

namespace
{

constexpr const wchar_t *iconName{L"IDI_ICON1"};

QByteArray contentOf(const char *name)
{
    QFile file{name};
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray{};
}

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

/// A program or a library, opened for its resources alone.
class File
{
public:
    explicit File(const char *name)
        : path{QDir::toNativeSeparators(QString::fromUtf8(name))}, module{LoadLibraryExW(
                                                                       wide(path), nullptr,
                                                                       LOAD_LIBRARY_AS_DATAFILE)}
    {}
    ~File() { FreeLibrary(module); }
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    HMODULE handle() const { return module; }

    /// Empty when there is none.
    QByteArray resource(const wchar_t *type, const wchar_t *name) const
    {
        const HRSRC found{FindResourceW(module, name, type)};
        if (found == nullptr) {
            return {};
        }
        const auto *const bytes = static_cast<const char *>(LockResource(LoadResource(module, found)));
        return {bytes, static_cast<int>(SizeofResource(module, found))};
    }

    /// Everything that Windows knows of the file's version.
    QByteArray version() const
    {
        DWORD ignored{0};
        QByteArray bytes(static_cast<int>(GetFileVersionInfoSizeW(wide(path), &ignored)), '\0');
        const auto size = static_cast<DWORD>(bytes.size());
        return GetFileVersionInfoW(wide(path), 0, size, bytes.data()) != 0 ? bytes : QByteArray{};
    }

private:
    const QString path;
    const HMODULE module;
};

/// One picture of an icon, as its directory lists it.
struct Picture
{
    int size;
    int bits;
    quint32 bytes;
    quint32 place; ///< Number of its resource, or where it begins in a file.
};

/// Reads the directory of an icon; in a file an entry ends with four bytes, in a resource with two.
QList<Picture> picturesIn(const QByteArray &directory, bool inAFile)
{
    QList<Picture> pictures;
    constexpr int header{6};
    const int step{inAFile ? 16 : 14};
    const auto *const bytes = reinterpret_cast<const uchar *>(directory.constData());
    const int count{directory.size() < header ? 0 : qFromLittleEndian<quint16>(bytes + 4)};
    for (int index{0}; index < count && header + (index + 1) * step <= directory.size(); ++index) {
        const uchar *const entry{bytes + header + index * step};
        pictures.append(
            {entry[0] == 0 ? 256 : entry[0], qFromLittleEndian<quint16>(entry + 6),
             qFromLittleEndian<quint32>(entry + 8),
             inAFile ? qFromLittleEndian<quint32>(entry + 12) : qFromLittleEndian<quint16>(entry + 12)});
    }
    return pictures;
}

QString textOf(const QByteArray &version, const QString &key)
{
    void *text{nullptr};
    UINT length{0};
    // US English, Unicode.
    const QString path{"\\StringFileInfo\\040904b0\\" + key};
    if (VerQueryValueW(version.constData(), wide(path), &text, &length) == 0) {
        return "none";
    }
    return QString::fromWCharArray(static_cast<const wchar_t *>(text));
}

/// How large an icon is that Windows gives out.
QString sizeOf(HICON icon)
{
    ICONINFO parts{};
    if (GetIconInfo(icon, &parts) == 0) {
        return "none";
    }
    BITMAP bitmap{};
    GetObjectW(parts.hbmColor, sizeof bitmap, &bitmap);
    DeleteObject(parts.hbmColor);
    DeleteObject(parts.hbmMask);
    return QString{"%1 x %2"}.arg(bitmap.bmWidth).arg(bitmap.bmHeight);
}

} // namespace

class WindowsResourcesTest : public QObject
{
    Q_OBJECT

private slots:
    void programHasTheWholeIcon();
    void windowsShowsTheIconInEverySize_data();
    void windowsShowsTheIconInEverySize();
    void versionIsTold_data();
    void versionIsTold();
    void manifestIsThere_data();
    void manifestIsThere();
};

void WindowsResourcesTest::programHasTheWholeIcon()
{
    const QByteArray drawn{contentOf(ICON)};
    const QList<Picture> expected{picturesIn(drawn, true)};
    const File program{PROGRAM};
    const QList<Picture> found{picturesIn(program.resource(RT_GROUP_ICON, iconName), false)};
    QList<int> sizes;
    for (const Picture &picture : found) {
        sizes.append(picture.size);
    }
    const QList<int> every{16, 24, 32, 48, 64, 128, 256};
    QCOMPARE(sizes, every);
    QCOMPARE(expected.size(), found.size());
    for (int index{0}; index < found.size(); ++index) {
        QCOMPARE(found[index].size, expected[index].size);
        QCOMPARE(found[index].bits, 32);
        QCOMPARE(program.resource(RT_ICON, MAKEINTRESOURCEW(found[index].place)),
                 drawn.mid(static_cast<int>(expected[index].place), static_cast<int>(expected[index].bytes)));
    }
}

void WindowsResourcesTest::windowsShowsTheIconInEverySize_data()
{
    QTest::addColumn<int>("size");
    // Those of the screens' scalings too, which Windows makes of the others.
    for (const int size : {16, 20, 24, 32, 40, 48, 64, 128, 256}) {
        QTest::addRow("%d", size) << size;
    }
}

void WindowsResourcesTest::windowsShowsTheIconInEverySize()
{
    QFETCH(const int, size);
    const File program{PROGRAM};
    auto *const icon =
        static_cast<HICON>(LoadImageW(program.handle(), iconName, IMAGE_ICON, size, size, LR_DEFAULTCOLOR));
    QVERIFY(icon != nullptr);
    QCOMPARE(sizeOf(icon), QString{"%1 x %1"}.arg(size));
    DestroyIcon(icon);
}

void WindowsResourcesTest::versionIsTold_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<unsigned>("type");
    const auto row = [](const char *file, const char *description, const QStringList &names, unsigned type) {
        QTest::addRow("%s", qPrintable(names.last()))
            << QString{file} << QString{description} << names << type;
    };
    row(PROGRAM, "Pilotel Blend Unit", {"pilotel", "pilotel.exe"}, VFT_APP);
    row(CHECK, "Check of the device library", {"pilotel-sdk-check", "pilotel-sdk-check.exe"}, VFT_APP);
    row(CTL, "Settings of the camera from the command line", {"pilotel-ctl", "pilotel-ctl.exe"}, VFT_APP);
    row(TOUR, "Guided tour of the window", {"pilotel-tour", "pilotel-tour.exe"}, VFT_APP);
    row(SDK_LIBRARY, "Simulated device library", {"veltrix_simulator", "veltrix.sdk.dll"}, VFT_DLL);
}

void WindowsResourcesTest::versionIsTold()
{
    QFETCH(const QString, file);
    QFETCH(const QString, description);
    QFETCH(const QStringList, names);
    QFETCH(const unsigned, type);
    const QByteArray version{File{qPrintable(file)}.version()};
    QVERIFY(!version.isEmpty());
    const QString number{QString{PROJECT_VERSION} + ".0"};
    QCOMPARE(textOf(version, "CompanyName"), QString{"Norvane Technologies"});
    QCOMPARE(textOf(version, "FileDescription"), description);
    QCOMPARE(textOf(version, "FileVersion"), number);
    QCOMPARE(textOf(version, "InternalName"), names.first());
    QCOMPARE(textOf(version, "OriginalFilename"), names.last());
    QCOMPARE(textOf(version, "ProductName"), QString{"Pilotel Blend Unit"});
    QCOMPARE(textOf(version, "ProductVersion"), number);

    void *place{nullptr};
    UINT length{0};
    QVERIFY(VerQueryValueW(version.constData(), L"\\", &place, &length) != 0);
    QCOMPARE(length, static_cast<UINT>(sizeof(VS_FIXEDFILEINFO)));
    const auto &fixed = *static_cast<const VS_FIXEDFILEINFO *>(place);
    const QStringList parts{number.split('.')};
    const DWORD high{parts[0].toUInt() << 16 | parts[1].toUInt()};
    const DWORD low{parts[2].toUInt() << 16};
    QCOMPARE(fixed.dwFileVersionMS, high);
    QCOMPARE(fixed.dwFileVersionLS, low);
    QCOMPARE(fixed.dwProductVersionMS, high);
    QCOMPARE(fixed.dwProductVersionLS, low);
    QCOMPARE(fixed.dwFileType, DWORD{type});
    // Neither a trial nor a build for the search of errors.
    QCOMPARE(fixed.dwFileFlags & fixed.dwFileFlagsMask, DWORD{0});
}

void WindowsResourcesTest::manifestIsThere_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("manifest");
    for (const char *const file : {PROGRAM, CHECK, CTL, TOUR}) {
        QTest::newRow(file) << QString{file} << contentOf(MANIFEST);
    }
    // It is the program's that counts.
    QTest::newRow("library") << QString{SDK_LIBRARY} << QByteArray{};
}

void WindowsResourcesTest::manifestIsThere()
{
    QFETCH(const QString, file);
    QFETCH(const QByteArray, manifest);
    QVERIFY(file == SDK_LIBRARY || manifest.contains("<longPathAware "));
    QCOMPARE(File{qPrintable(file)}.resource(RT_MANIFEST, MAKEINTRESOURCEW(1)), manifest);
}

PILOTEL_TEST_CLASS(WindowsResourcesTest)
#include "tst_windows_resources.moc"
