// Exceptions: heap objects thrown by pointer, Delete(), the TRY/CATCH macros and messages.
#include <afx.h>
#include <gtest/gtest.h>

namespace {

int g_nLiveCounted = 0;

class CCountedException : public CException
{
public:
    CCountedException() { ++g_nLiveCounted; }
    ~CCountedException() { --g_nLiveCounted; }
};

void ThrowCounted()
{
    throw new CCountedException;
}

} // namespace

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

TEST(ExceptionMacros, AndCatchSelectsTheMatchingHandler)
{
    int nHandler = 0;
    TRY
    {
        AfxThrowFileException(CFileException::fileNotFound);
    }
    CATCH(CMemoryException, e)
    {
        nHandler = 1;
    }
    AND_CATCH(CFileException, e)
    {
        EXPECT_EQ(e->m_cause, CFileException::fileNotFound);
        nHandler = 2;
    }
    END_CATCH
    EXPECT_EQ(nHandler, 2);
}

TEST(ExceptionMacros, CatchAllAndThrowLastPassTheSameObjectOutward)
{
    CException* pInner = nullptr;
    CException* pOuter = nullptr;
    TRY
    {
        TRY
        {
            ThrowCounted();
        }
        CATCH_ALL(e)
        {
            pInner = e;
            THROW_LAST();
        }
        END_CATCH_ALL
    }
    CATCH_ALL(e)
    {
        pOuter = e;
        EXPECT_EQ(g_nLiveCounted, 1); // still alive: rethrown, not deleted
    }
    END_CATCH_ALL
    EXPECT_NE(pInner, nullptr);
    EXPECT_EQ(pInner, pOuter);
    EXPECT_EQ(g_nLiveCounted, 0);
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
