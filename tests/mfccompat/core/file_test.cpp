// CFile and CFileFind against a scratch folder in %TEMP%, and the causes of file errors.
#include <afx.h>
#include <gtest/gtest.h>
#include <vector>
#include <algorithm>
#include "throws.h"

namespace {

class FileTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        WCHAR temp[MAX_PATH];
        GetTempPathW(MAX_PATH, temp);
        m_dir.Format(L"%szo_core_%lu_%p", temp, GetCurrentProcessId(), (void*)this);
        ASSERT_TRUE(CreateDirectoryW(m_dir, NULL));
    }

    void TearDown() override
    {
        CFileFind finder;
        for (BOOL more = finder.FindFile(m_dir + L"\\*"); more;)
        {
            more = finder.FindNextFile();
            if (finder.IsDots())
                continue;
            if (finder.IsDirectory())
                RemoveDirectoryW(finder.GetFilePath());
            else
                DeleteFileW(finder.GetFilePath());
        }
        finder.Close();
        RemoveDirectoryW(m_dir);
    }

    CString PathOf(LPCWSTR name) const { return m_dir + L"\\" + name; }

    void WriteFile(LPCWSTR name, const char* bytes)
    {
        CFile file(PathOf(name), CFile::modeCreate | CFile::modeWrite);
        file.Write(bytes, (UINT)strlen(bytes));
    }

    CString m_dir;
};

// The cause of the CFileException `operation` throws (its file name in `fileName`), or -1.
template <class F>
int FileExceptionCause(F operation, CString* fileName = NULL)
{
    try
    {
        operation();
    }
    catch (CFileException* e)
    {
        const int cause = e->m_cause;
        if (fileName != NULL)
            *fileName = e->m_strFileName;
        e->Delete();
        return cause;
    }
    return -1;
}

} // namespace

TEST_F(FileTest, OpenMissingFileReportsFileNotFound)
{
    CFile file;
    CFileException error;
    CString path = PathOf(L"missing.bin");
    EXPECT_FALSE(file.Open(path, CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(error.m_lOsError, (LONG)ERROR_FILE_NOT_FOUND);
    EXPECT_STREQ(error.m_strFileName, path);
    EXPECT_EQ(file.m_hFile, CFile::hFileNull);
    EXPECT_FALSE(file.Open(path, CFile::modeRead)); // no exception object: just FALSE
}

TEST_F(FileTest, ConstructorThrowsWithCauseAndName)
{
    CString path = PathOf(L"absent.txt"), named;
    EXPECT_EQ(FileExceptionCause([&] { CFile file(path, CFile::modeRead | CFile::shareDenyNone); }, &named),
              CFileException::fileNotFound);
    EXPECT_STREQ(named, path);
}

TEST_F(FileTest, WriteSeekReadAndShortRead)
{
    CFile file(PathOf(L"data.bin"), CFile::modeCreate | CFile::modeReadWrite);
    file.Write("0123456789", 10);
    EXPECT_EQ(file.GetLength(), 10u);
    EXPECT_EQ(file.GetPosition(), 10u);
    file.SeekToBegin();
    char buffer[32] = {};
    EXPECT_EQ(file.Read(buffer, 4), 4u);
    EXPECT_EQ(std::string(buffer, 4), "0123");
    EXPECT_EQ(file.Seek(-3, CFile::end), 7u);
    EXPECT_EQ(file.Read(buffer, sizeof(buffer)), 3u); // short read at the end: no exception
    EXPECT_EQ(std::string(buffer, 3), "789");
    EXPECT_EQ(file.Read(buffer, sizeof(buffer)), 0u);
    EXPECT_EQ(file.Seek(2, CFile::begin), 2u);
    EXPECT_EQ(file.Seek(3, CFile::current), 5u);
    EXPECT_EQ(file.SeekToEnd(), 10u);
    EXPECT_EQ(file.Read(buffer, 0), 0u);
    file.SetLength(4);
    EXPECT_EQ(file.GetLength(), 4u);
    file.Flush();
    file.Close();
    EXPECT_EQ(file.m_hFile, CFile::hFileNull);
}

TEST_F(FileTest, OperationsOnAClosedFileThrowInvalidFile)
{
    CFile file;
    char buffer[4];
    EXPECT_EQ(FileExceptionCause([&] { file.Read(buffer, sizeof(buffer)); }), CFileException::invalidFile);
    EXPECT_EQ(FileExceptionCause([&] { file.Write("x", 1); }), CFileException::invalidFile);
    file.Close(); // closing twice is harmless
    file.Flush();
}

TEST_F(FileTest, FindNothingAndAccessorsBeforeTheFirstMatch)
{
    CFileFind finder;
    EXPECT_FALSE(finder.FindFile(PathOf(L"*.none")));
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_FALSE(finder.FindFile(L""));
    WriteFile(L"one.txt", "x");
    ASSERT_TRUE(finder.FindFile(PathOf(L"one.txt")));
    EXPECT_TRUE(finder.GetFileName().IsEmpty()); // nothing current before FindNextFile
    EXPECT_FALSE(finder.IsDirectory());
    EXPECT_EQ(finder.GetLength(), 0u);
    EXPECT_FALSE(finder.FindNextFile()); // the match just made current is the last
    EXPECT_STREQ(finder.GetFileName(), L"one.txt");
    finder.Close();
    EXPECT_TRUE(finder.GetFileName().IsEmpty());
}

TEST(FileException, OsErrorsMapToCauses)
{
    const struct { LONG error; int cause; } cases[] = {
        {ERROR_FILE_NOT_FOUND, CFileException::fileNotFound}, {ERROR_PATH_NOT_FOUND, CFileException::badPath},
        {ERROR_TOO_MANY_OPEN_FILES, CFileException::tooManyOpenFiles},
        {ERROR_ACCESS_DENIED, CFileException::accessDenied}, {ERROR_INVALID_HANDLE, CFileException::invalidFile},
        {ERROR_CURRENT_DIRECTORY, CFileException::removeCurrentDir},
        {ERROR_CANNOT_MAKE, CFileException::directoryFull}, {ERROR_NEGATIVE_SEEK, CFileException::badSeek},
        {ERROR_CRC, CFileException::hardIO}, {ERROR_SHARING_VIOLATION, CFileException::sharingViolation},
        {ERROR_LOCK_VIOLATION, CFileException::lockViolation}, {ERROR_DISK_FULL, CFileException::diskFull},
        {ERROR_HANDLE_EOF, CFileException::endOfFile}, {12345, CFileException::genericException},
    };
    for (const auto& c : cases)
        EXPECT_EQ(CFileException::OsErrorToException(c.error), c.cause) << c.error;
}
