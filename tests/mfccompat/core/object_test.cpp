// Run-time class information: dynamic creation, IsKindOf across a hierarchy, names.
#include <afx.h>
#include <gtest/gtest.h>

class CTestAnimal : public CObject
{
    DECLARE_DYNCREATE(CTestAnimal)
public:
    int m_nLegs = 4;
};

class CTestDog : public CTestAnimal
{
    DECLARE_DYNCREATE(CTestDog)
public:
    int m_nBarks = 0;
};

class CTestCat : public CTestAnimal
{
    DECLARE_DYNAMIC(CTestCat) // not dynamically creatable
public:
    explicit CTestCat(int nLives) : m_nLives(nLives) { }
    int m_nLives;
};

IMPLEMENT_DYNCREATE(CTestAnimal, CObject)
IMPLEMENT_DYNCREATE(CTestDog, CTestAnimal)
IMPLEMENT_DYNAMIC(CTestCat, CTestAnimal)

TEST(RuntimeClass, CreateObjectBuildsTheRightClass)
{
    CObject* pObject = RUNTIME_CLASS(CTestDog)->CreateObject();
    ASSERT_NE(pObject, nullptr);
    EXPECT_EQ(pObject->GetRuntimeClass(), RUNTIME_CLASS(CTestDog));
    CTestDog* pDog = DYNAMIC_DOWNCAST(CTestDog, pObject);
    ASSERT_NE(pDog, nullptr);
    EXPECT_EQ(pDog->m_nLegs, 4);
    delete pObject;
}

TEST(RuntimeClass, ClassWithoutDynCreateCannotBeCreated)
{
    EXPECT_EQ(RUNTIME_CLASS(CTestCat)->CreateObject(), nullptr);
    EXPECT_EQ(RUNTIME_CLASS(CTestCat)->m_pfnCreateObject, nullptr);
}

TEST(RuntimeClass, IsKindOfFollowsTheHierarchy)
{
    CTestDog dog;
    CTestCat cat(9);
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CTestDog)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CTestAnimal)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(dog.IsKindOf(RUNTIME_CLASS(CTestCat)));
    EXPECT_TRUE(cat.IsKindOf(RUNTIME_CLASS(CTestAnimal)));
    EXPECT_FALSE(cat.IsKindOf(RUNTIME_CLASS(CTestDog)));
    EXPECT_FALSE(dog.IsKindOf(nullptr));
}

TEST(RuntimeClass, IsDerivedFromAndBaseClassChain)
{
    EXPECT_TRUE(RUNTIME_CLASS(CTestDog)->IsDerivedFrom(RUNTIME_CLASS(CTestAnimal)));
    EXPECT_FALSE(RUNTIME_CLASS(CTestAnimal)->IsDerivedFrom(RUNTIME_CLASS(CTestDog)));
    EXPECT_EQ(RUNTIME_CLASS(CTestDog)->m_pfnGetBaseClass(), RUNTIME_CLASS(CTestAnimal));
    EXPECT_EQ(RUNTIME_CLASS(CTestAnimal)->m_pfnGetBaseClass(), RUNTIME_CLASS(CObject));
    EXPECT_EQ(RUNTIME_CLASS(CObject)->m_pfnGetBaseClass(), nullptr);
}

TEST(RuntimeClass, NamesSizesAndSchema)
{
    EXPECT_STREQ(RUNTIME_CLASS(CTestDog)->m_lpszClassName, "CTestDog");
    EXPECT_STREQ(RUNTIME_CLASS(CObject)->m_lpszClassName, "CObject");
    EXPECT_EQ(RUNTIME_CLASS(CTestDog)->m_nObjectSize, (int)sizeof(CTestDog));
    EXPECT_EQ(RUNTIME_CLASS(CTestDog)->m_wSchema, 0xFFFFu);
    CTestDog dog;
    EXPECT_FALSE(dog.IsSerializable());
}

TEST(RuntimeClass, FromNameFindsImplementedClasses)
{
    EXPECT_EQ(CRuntimeClass::FromName("CTestDog"), RUNTIME_CLASS(CTestDog));
    EXPECT_EQ(CRuntimeClass::FromName(L"CTestCat"), RUNTIME_CLASS(CTestCat));
    EXPECT_EQ(CRuntimeClass::FromName("CObject"), RUNTIME_CLASS(CObject));
    EXPECT_EQ(CRuntimeClass::FromName("CNoSuchClass"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName((LPCSTR)nullptr), nullptr);
    CObject* pObject = CRuntimeClass::CreateObject(L"CTestAnimal");
    ASSERT_NE(pObject, nullptr);
    EXPECT_TRUE(pObject->IsKindOf(RUNTIME_CLASS(CTestAnimal)));
    delete pObject;
    EXPECT_EQ(CRuntimeClass::CreateObject("CTestCat"), nullptr);
}

TEST(RuntimeClass, LayerClassesAreRegistered)
{
    EXPECT_EQ(CRuntimeClass::FromName("CFileException"), RUNTIME_CLASS(CFileException));
    EXPECT_TRUE(RUNTIME_CLASS(CFileException)->IsDerivedFrom(RUNTIME_CLASS(CException)));
    EXPECT_TRUE(RUNTIME_CLASS(CMemoryException)->IsDerivedFrom(RUNTIME_CLASS(CSimpleException)));
}

TEST(RuntimeClass, DynamicDowncastRejectsOtherClasses)
{
    CTestCat cat(7);
    CObject* pObject = &cat;
    EXPECT_EQ(DYNAMIC_DOWNCAST(CTestDog, pObject), nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CTestCat, pObject), &cat);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CTestAnimal, pObject), static_cast<CTestAnimal*>(&cat));
    EXPECT_EQ(DYNAMIC_DOWNCAST(CTestCat, (CObject*)nullptr), nullptr);
    EXPECT_EQ(STATIC_DOWNCAST(CTestCat, pObject)->m_nLives, 7);
}
