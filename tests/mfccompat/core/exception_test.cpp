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

// Whether `thrower` throws an exception that a handler for `Caught` receives, of class `kind`.
template <class Caught, class F>
bool ThrowsKindCaughtAs(F thrower, CRuntimeClass* kind)
{
    try
    {
        thrower();
    }
    catch (Caught* e)
    {
        const bool right = e->IsKindOf(kind) != FALSE;
        e->Delete();
        return right;
    }
    return false;
}

TEST(Exceptions, DerivedExceptionsAreCaughtThroughTheirBases)
{
    EXPECT_TRUE(ThrowsKindCaughtAs<CException>([] { AfxThrowInvalidArgException(); },
                                               RUNTIME_CLASS(CInvalidArgException)));
    EXPECT_TRUE(ThrowsKindCaughtAs<CNotSupportedException>([] { AfxThrowNotSupportedException(); },
                                                           RUNTIME_CLASS(CNotSupportedException)));
    EXPECT_TRUE(ThrowsKindCaughtAs<CSimpleException>([] { AfxThrowMemoryException(); },
                                                     RUNTIME_CLASS(CMemoryException)));
}

TEST(Exceptions, DeleteKeepsObjectsNotMarkedAutoDelete)
{
    CFileException onStack(CFileException::badSeek);
    onStack.m_bAutoDelete = FALSE;
    onStack.Delete(); // must not free a stack object
    EXPECT_EQ(onStack.m_cause, CFileException::badSeek);
}

TEST(ExceptionMacros, CatchDeletesTheExceptionAtTheEndOfTheHandler)
{
    ASSERT_EQ(g_nLiveCounted, 0);
    bool bHandled = false;
    TRY
    {
        ThrowCounted();
    }
    CATCH(CCountedException, e)
    {
        EXPECT_EQ(g_nLiveCounted, 1);
        bHandled = true;
    }
    END_CATCH
    EXPECT_TRUE(bHandled);
    EXPECT_EQ(g_nLiveCounted, 0);
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

TEST(ExceptionMacros, NoExceptionSkipsTheHandlers)
{
    int nHandled = 0;
    TRY
    {
        nHandled = 0;
    }
    CATCH_ALL(e)
    {
        nHandled = 1;
    }
    END_CATCH_ALL
    EXPECT_EQ(nHandled, 0);
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

TEST(FileException, ThrowOsErrorCarriesCauseErrorAndName)
{
    CFileException::ThrowOsError(0, L"ignored.txt"); // no error: nothing thrown
    try
    {
        CFileException::ThrowOsError(ERROR_SHARING_VIOLATION, L"busy.txt");
        FAIL() << "nothing thrown";
    }
    catch (CFileException* e)
    {
        EXPECT_EQ(e->m_cause, CFileException::sharingViolation);
        EXPECT_EQ(e->m_lOsError, (LONG)ERROR_SHARING_VIOLATION);
        EXPECT_STREQ(e->m_strFileName, L"busy.txt");
        e->Delete();
    }
}

TEST(FileException, ErrorMessageNamesTheFile)
{
    CFileException error(CFileException::fileNotFound, ERROR_FILE_NOT_FOUND, L"theme.ini");
    TCHAR text[128];
    UINT nHelp = 99;
    ASSERT_TRUE(error.GetErrorMessage(text, _countof(text), &nHelp));
    EXPECT_NE(wcsstr(text, L"theme.ini"), nullptr);
    EXPECT_EQ(nHelp, 0u);

    TCHAR small[6];
    ASSERT_TRUE(error.GetErrorMessage(small, _countof(small)));
    EXPECT_EQ(wcslen(small), 5u); // truncated, still terminated
    EXPECT_FALSE(error.GetErrorMessage(nullptr, 10));

    CFileException odd(777); // out-of-range cause reads as a generic failure
    EXPECT_TRUE(odd.GetErrorMessage(text, _countof(text)));
}

TEST(SimpleException, HasAFixedMessage)
{
    CMemoryException memory;
    TCHAR text[128];
    ASSERT_TRUE(memory.GetErrorMessage(text, _countof(text)));
    EXPECT_GT(wcslen(text), 0u);
    CInvalidArgException invalid;
    TCHAR other[128];
    ASSERT_TRUE(invalid.GetErrorMessage(other, _countof(other)));
    EXPECT_STRNE(text, other);
}
