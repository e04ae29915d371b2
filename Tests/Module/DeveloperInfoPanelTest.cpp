// Copyright Velmorant. All Rights Reserved.

#include "EditorWidgets/VlmEWDevInfo.h"
#include "PanelLayouts.h"
#include "TestPanel.h"
#include "ToolkitTest.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantSDKEngineSubsystem.h"
#include "VlmImage.h"

using testing::IsEmpty;

namespace DeveloperInfoPanelTest
{
	/** The first bytes of a PNG file, up to its size. */
	std::string PngOf(uint8 Width, uint8 Height)
	{
		std::string Bytes("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\0\0\0\0\0", 24);
		Bytes[18] = static_cast<char>(Width); // counted in 256 pixels
		Bytes[22] = static_cast<char>(Height);
		return Bytes;
	}

	/** The first bytes of a JPEG file, with a table before the frame. */
	std::string JpegOf(uint8 Width, uint8 Height)
	{
		std::string Bytes("\xFF\xD8\xFF\xC4\0\x04"
						  "ab\xFF\xC2\0\x11\x08\0\0\0\0\x03",
			18);
		Bytes[14] = static_cast<char>(Height); // in pixels
		Bytes[16] = static_cast<char>(Width);
		return Bytes;
	}

	/** One user with these further members. */
	std::string UserWith(const std::string& Members)
	{
		return R"({"users": [{"userName": "ada", "password": "sesame-77", )" + Members + "}]}";
	}

	const FLinearColor Tint(0.5f, 0.25f, 0.0f, 0.5f);
}

using namespace DeveloperInfoPanelTest;

class DeveloperInfoPanel : public FToolkitTest
{
protected:
	/** A panel on screen, of a user who has signed in; its image has another tint than white. */
	FTestPanel MakePanel()
	{
		StartEditor();
		SignIn();
		FTestPanel Panel(PanelLayouts::DeveloperInfo, {});
		Panel.Show();
		Panel.Find<UVlmImage>(TEXT("DevImage"))->SetColorAndOpacity(Tint);
		return Panel;
	}

	static void Activate(const FTestPanel& Panel) { IVlmEditorPanelInterface::Execute_ActivateDataPanel(Panel.Get()); }

	static const UVlmImage& ImageOf(const FTestPanel& Panel) { return *Panel.Find<UVlmImage>(TEXT("DevImage")); }

	static std::string PictureOf(const FTestPanel& Panel) { return ToUtf8(ImageOf(Panel).GetBrush().GetResourceName()); }
};

TEST_F(DeveloperInfoPanel, ShowsWhoIsSignedIn)
{
	const FTestPanel Panel = MakePanel();
	EXPECT_FALSE(Panel.Get<UVlmEWDevInfo>()->bPanelActivated);
	EXPECT_EQ(Panel.Read(TEXT("DevName")), "") << "not before it is activated";
	Activate(Panel);
	EXPECT_EQ(Panel.Read(TEXT("DevName")), "Ada Byron");
	EXPECT_EQ(Panel.Read(TEXT("DevEmail")), "ada@example.com");
	EXPECT_TRUE(Panel.Get<UVlmEWDevInfo>()->bPanelActivated);
}

TEST_F(DeveloperInfoPanel, ShowsTheUserInWhoseContextTheEditorIs)
{
	StartEditor();
	GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("sesame-77")));
	Wait(0.0);
	FTestPanel Panel(PanelLayouts::DeveloperInfo, {});
	Panel.Show();
	Activate(Panel);
	EXPECT_EQ(Panel.Read(TEXT("DevName")), " ") << "the running model's user has not signed in";
	UVelmorantSDKEngineSubsystem::EnsureUserEditorContext();
	Activate(Panel);
	EXPECT_EQ(Panel.Read(TEXT("DevName")), "Ada Byron");
}

TEST_F(DeveloperInfoPanel, KeepsTheBlankBetweenNamesThatAreMissing)
{
	const struct
	{
		const char* Members;
		const char* Shown;
	} Cases[] = {{R"("firstName": "Ada")", "Ada "}, {R"("lastName": "Byron")", " Byron"}, {R"("email": "")", " "}};
	for (const auto& Case : Cases)
	{
		WriteService(UserWith(Case.Members));
		const FTestPanel Panel = MakePanel();
		Activate(Panel);
		EXPECT_EQ(Panel.Read(TEXT("DevName")), Case.Shown);
	}
}

TEST_F(DeveloperInfoPanel, ShowsThePictureInItsOwnColours)
{
	const struct
	{
		const char* Behaviour;
		std::string Bytes;
		FVector2D Size;
	} Cases[] = {
		{"a small one as it is", JpegOf(200, 100), FVector2D(200.0, 100.0)},
		{"a wide one no wider than medium", PngOf(4, 1), FVector2D(256.0, 64.0)},
		{"a high one no higher than medium", PngOf(1, 2), FVector2D(128.0, 256.0)},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteProjectFile("Ada.picture", Case.Bytes);
		WriteService(UserWith(R"("picture": "Ada.picture")"));
		const FTestPanel Panel = MakePanel();
		Activate(Panel);
		EXPECT_THAT(PictureOf(Panel), testing::StartsWith("Picture_"));
		EXPECT_EQ(ImageOf(Panel).GetColorAndOpacity(), FLinearColor::White);
		const FVector2D Size = ImageOf(Panel).GetBrush().GetImageSize();
		EXPECT_EQ(Size, Case.Size);
	}
}

TEST_F(DeveloperInfoPanel, LeavesTheImageAsItIsWithoutPicture)
{
	const FTestPanel Panel = MakePanel();
	Activate(Panel);
	EXPECT_EQ(PictureOf(Panel), "None");
	EXPECT_EQ(ImageOf(Panel).GetColorAndOpacity(), Tint);
}

TEST_F(DeveloperInfoPanel, KeepsThePictureWhenTheNextUserHasNone)
{
	WriteProjectFile("Ada.picture", PngOf(1, 1));
	WriteService(UserWith(R"("picture": "Ada.picture")"));
	const FTestPanel Panel = MakePanel();
	Activate(Panel);
	const std::string Picture = PictureOf(Panel);
	WriteService(UserWith(R"("firstName": "Eve")"));
	SignIn();
	Activate(Panel);
	EXPECT_EQ(Panel.Read(TEXT("DevName")), "Eve ");
	EXPECT_EQ(PictureOf(Panel), Picture);
}

TEST_F(DeveloperInfoPanel, APictureOfNoKnownFormatDoesNotShow)
{
	for (const std::string& Bytes : {std::string("GIF89a"), PngOf(1, 1).substr(0, 23), JpegOf(1, 1).substr(0, 12), std::string("\xFF\xD8\xFF\xE0\0\0\0\0\0\0\0\0", 12)})
	{
		WriteProjectFile("Ada.picture", Bytes);
		WriteService(UserWith(R"("picture": "Ada.picture")"));
		const FTestPanel Panel = MakePanel();
		Activate(Panel);
		EXPECT_EQ(PictureOf(Panel), "None");
		EXPECT_EQ(ImageOf(Panel).GetColorAndOpacity(), FLinearColor::White) << "there is data, so the tint goes";
	}
}

TEST_F(DeveloperInfoPanel, SignsOut)
{
	StartEditor();
	FTestPanel Panel(PanelLayouts::DeveloperInfo, {});
	Panel.Show();
	Panel.Click(TEXT("LogoutButton")); // there is no user; nothing happens
	UVelmorantUser* RuntimeUser = UVelmorantSDKEngineSubsystem::Get()->GetVelmorantUser();
	for (UVelmorantUser* User : {RuntimeUser, static_cast<UVelmorantUser*>(GetUser())})
	{
		User->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("sesame-77")));
	}
	Wait(0.0);
	Panel.Hide();
	Panel.Show();
	ASSERT_TRUE(GetUser()->HasValidToken());
	Panel.Click(TEXT("LogoutButton"));
	EXPECT_FALSE(GetUser()->HasValidToken());
	EXPECT_TRUE(RuntimeUser->HasValidToken()) << "the running model's user stays";
	EXPECT_THAT(TakeOutcomes(), IsEmpty());
	Panel.Click(TEXT("LogoutButton")); // nobody is signed in; nothing happens
	EXPECT_FALSE(GetUser()->HasValidToken());
}

TEST_F(DeveloperInfoPanel, SwitchesTheUserOfTheRunningModel)
{
	for (const bool bUse : {true, false}) // nobody has signed in: telling makes the user, and so does asking
	{
		StartEditor();
		const FTestPanel Panel(PanelLayouts::DeveloperInfo, {});
		Panel.Get<UVlmEWDevInfo>()->SetDevUserInRuntime(bUse);
		EXPECT_EQ(Panel.Get<UVlmEWDevInfo>()->GetDevUserInRuntime(), bUse);
	}
	StartEditor();
	const FTestPanel Panel(PanelLayouts::DeveloperInfo, {});
	UVlmEWDevInfo* Info = Panel.Get<UVlmEWDevInfo>();
	EXPECT_FALSE(Info->GetDevUserInRuntime());
	UVelmorantSDKEngineSubsystem* Subsystem = UVelmorantSDKEngineSubsystem::Get();
	const UVelmorantUser* RuntimeUser = Subsystem->GetVelmorantUser();
	EXPECT_NE(RuntimeUser, GetUser());
	Info->SetDevUserInRuntime(true);
	EXPECT_TRUE(Info->GetDevUserInRuntime());
	EXPECT_EQ(Subsystem->GetVelmorantUser(), GetUser());
	Info->SetDevUserInRuntime(false);
	EXPECT_FALSE(Info->GetDevUserInRuntime());
	EXPECT_EQ(Subsystem->GetVelmorantUser(), RuntimeUser);
}
