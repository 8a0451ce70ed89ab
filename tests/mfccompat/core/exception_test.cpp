// Exceptions: heap objects thrown by pointer, Delete() and the causes of file errors.
#include <afx.h>
#include <gtest/gtest.h>

TEST(Exceptions, CatchByPointerAndDelete)
{
    try
    {
        AfxThrowFileException(CFileException::endOfFile, -1, L"C:\\data\\tree.bin");
        FAIL() << "nothing thrown";
    }
    catch (CFileException* e)
    {
        EXPECT_EQ(e->m_cause, CFileException::endOfFile);
        EXPECT_EQ(e->m_cause, 14);
        EXPECT_EQ(e->m_lOsError, -1);
        EXPECT_STREQ(e->m_strFileName, L"C:\\data\\tree.bin");
        EXPECT_TRUE(e->m_bAutoDelete);
        e->Delete();
    }
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
