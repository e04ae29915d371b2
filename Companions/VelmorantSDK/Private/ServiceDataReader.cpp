// Copyright Velmorant. All Rights Reserved.

#include "ServiceDataReader.h"

#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "ServiceDocument.h"

#include <algorithm>

namespace ServiceDataReader
{
	/** Key codes and names identify things: a second one of the same text would never be found. */
	class FUniqueNames
	{
	public:
		void Add(const FString& Name, const FServiceDocumentValue& Place)
		{
			bool bAlreadyThere = false;
			Names.Add(Name, &bAlreadyThere);
			if (bAlreadyThere)
			{
				Place.Fail(std::string("\"") + TCHAR_TO_UTF8(*Name) + "\" is there already; letter case does not count");
			}
		}

		bool Contains(const FString& Name) const { return Names.Contains(Name); }

	private:
		TSet<FString> Names;
	};

	FImageObjectData ReadPicture(const FServiceDocumentValue& User, const FString& Folder)
	{
		FImageObjectData Picture;
		if (User.Has("picture"))
		{
			const FString Path = FPaths::Combine(Folder, User.GetName("picture"));
			if (!FFileHelper::LoadFileToArray(Picture.Data, *Path))
			{
				User.Get("picture").Fail(std::string("the file ") + TCHAR_TO_UTF8(*Path) + " cannot be read");
			}
		}
		return Picture;
	}

	FServiceUser ReadUser(const FServiceDocumentValue& Value, const FUniqueNames& ProjectKeyCodes, const FString& Folder)
	{
		Value.AllowMembers({"userName", "password", "firstName", "lastName", "email", "picture", "projects"});
		FServiceUser User;
		User.UserName = Value.GetName("userName");
		User.Password = Value.GetName("password");
		User.LoginInfo.FirstName = Value.GetString("firstName", FString());
		User.LoginInfo.LastName = Value.GetString("lastName", FString());
		User.LoginInfo.Email = Value.GetString("email", FString());
		User.LoginInfo.Picture = ReadPicture(Value, Folder);
		Value.ForEach("projects", [&](const FServiceDocumentValue& KeyCode) {
			if (!ProjectKeyCodes.Contains(KeyCode.AsString()))
			{
				KeyCode.Fail("there is no project with this key code");
			}
			User.ProjectKeyCodes.Add(KeyCode.AsString());
		});
		return User;
	}

	FVelmorantUnitGroupRecord ReadUnitGroup(const FServiceDocumentValue& Value)
	{
		Value.AllowMembers({"keyCode", "name", "units"});
		FVelmorantUnitGroupRecord Record;
		Record.Group.KeyCode = Value.GetName("keyCode");
		Record.Group.Name = Value.GetString("name");
		FUniqueNames KeyCodes;
		Value.ForEach("units", [&](const FServiceDocumentValue& Unit) {
			Unit.AllowMembers({"keyCode", "name", "unitID"});
			FUnitData& Data = Record.Units.AddDefaulted_GetRef();
			Data.KeyCode = Unit.GetName("keyCode");
			Data.Name = Unit.GetString("name");
			Data.UnitID = Unit.GetInteger("unitID");
			KeyCodes.Add(Data.KeyCode, Unit.Get("keyCode"));
		});
		return Record;
	}

	FVelmorantConfigUnit ReadRooms(const FServiceDocumentValue& Configurator)
	{
		FVelmorantConfigUnit Unit;
		Configurator.ForEach("rooms", [&](const FServiceDocumentValue& RoomValue) {
			RoomValue.AllowMembers({"name", "groups"});
			FVelmorantConfigRoom& Room = Unit.Rooms.AddDefaulted_GetRef();
			Room.Name = RoomValue.GetString("name");
			RoomValue.ForEach("groups", [&](const FServiceDocumentValue& GroupValue) {
				GroupValue.AllowMembers({"name", "products"});
				FVelmorantConfigGroup& Group = Room.Groups.AddDefaulted_GetRef();
				Group.Name = GroupValue.GetString("name");
				GroupValue.ForEach("products", [&](const FServiceDocumentValue& Product) {
					Group.Products.AddDefaulted_GetRef().Name = Product.AsString();
				});
			});
		});
		return Unit;
	}

	FVelmorantConfiguratorRecord ReadConfigurator(const FServiceDocumentValue& Value, const TArray<FVelmorantUnitGroupRecord>& UnitGroups)
	{
		Value.AllowMembers({"name", "recordName", "unitGroups", "rooms"});
		FVelmorantConfiguratorRecord Record;
		const FString Name = Value.GetName("name");
		Record.Name = FName(Name);
		Record.Units.Add(FName(Value.GetString("recordName", Name)), ReadRooms(Value));
		Value.ForEach("unitGroups", [&](const FServiceDocumentValue& KeyCode) {
			const FVelmorantUnitGroupRecord* UnitGroup = UnitGroups.FindByPredicate([&KeyCode](const FVelmorantUnitGroupRecord& Candidate) {
				return Candidate.Group.KeyCode == KeyCode.AsString();
			});
			if (!UnitGroup)
			{
				KeyCode.Fail("there is no unit group with this key code in the project");
			}
			FVelmorantConfiguratorUnitGroup& Entry = Record.UnitGroups.AddDefaulted_GetRef();
			Entry.Key = UnitGroup->Group.KeyCode;
			Entry.Name = UnitGroup->Group.Name;
		});
		return Record;
	}

	FServiceProject ReadProject(const FServiceDocumentValue& Value)
	{
		Value.AllowMembers({"keyCode", "apiKey", "name", "unitGroups", "configurators"});
		FServiceProject Result;
		Result.Project.KeyCode = Value.GetName("keyCode");
		Result.Project.ApiKey = Value.GetString("apiKey", FString());
		Result.Project.ProjectName = Value.GetName("name");

		FUniqueNames KeyCodes;
		Value.ForEach("unitGroups", [&](const FServiceDocumentValue& UnitGroup) {
			Result.UnitGroups.Add(ReadUnitGroup(UnitGroup));
			KeyCodes.Add(Result.UnitGroups.Last().Group.KeyCode, UnitGroup.Get("keyCode"));
		});

		FUniqueNames Names;
		Value.ForEach("configurators", [&](const FServiceDocumentValue& Configurator) {
			Result.Configurators.Add(ReadConfigurator(Configurator, Result.UnitGroups));
			Names.Add(Configurator.GetString("name"), Configurator.Get("name"));
		});
		return Result;
	}

	EServiceRequest ReadRequest(const FServiceDocumentValue& Value)
	{
		static const TMap<FString, EServiceRequest> Requests = {
			{TEXT("login"), EServiceRequest::Login},
			{TEXT("projects"), EServiceRequest::Projects},
			{TEXT("projectData"), EServiceRequest::ProjectData},
			{TEXT("configurator"), EServiceRequest::Configurator}};
		const EServiceRequest* Request = Requests.Find(Value.AsString());
		if (!Request)
		{
			Value.Fail("must be one of \"login\", \"projects\", \"projectData\", \"configurator\"");
		}
		return *Request;
	}

	FServiceData ReadDocument(const FServiceDocumentValue& Document, const FString& Folder)
	{
		Document.AllowMembers({"delaySeconds", "tokenSeconds", "users", "projects", "failingRequests"});
		FServiceData Data;
		Data.DelaySeconds = Document.GetSeconds("delaySeconds", 0.0);
		Data.TokenSeconds = Document.GetSeconds("tokenSeconds", 8.0 * 3600.0);

		FUniqueNames KeyCodes;
		Document.ForEach("projects", [&](const FServiceDocumentValue& Project) {
			Data.Projects.Add(ReadProject(Project));
			KeyCodes.Add(Data.Projects.Last().Project.KeyCode, Project.Get("keyCode"));
		});

		FUniqueNames UserNames;
		Document.ForEach("users", [&](const FServiceDocumentValue& User) {
			Data.Users.Add(ReadUser(User, KeyCodes, Folder));
			UserNames.Add(Data.Users.Last().UserName, User.Get("userName"));
		});

		Document.ForEach("failingRequests", [&](const FServiceDocumentValue& Request) { Data.FailingRequests.Add(ReadRequest(Request)); });
		return Data;
	}

	FString DescribeParseError(const std::string& Text, const nlohmann::json::parse_error& Error)
	{
		const size_t End = std::min(Error.byte, Text.size());
		const auto Line = 1 + std::count(Text.begin(), Text.begin() + static_cast<std::ptrdiff_t>(End), '\n');
		return FString::Printf(TEXT("line %d: this is not JSON: %s"), static_cast<int32>(Line), UTF8_TO_TCHAR(Error.what()));
	}
}

TOptional<FServiceData> ServiceDataReader::Read(const FString& Path, FString& OutError)
{
	TArray<uint8> Bytes;
	if (!FFileHelper::LoadFileToArray(Bytes, *Path))
	{
		OutError = FString::Printf(TEXT("%s: the file cannot be read"), *Path);
		return {};
	}

	const std::string Text(reinterpret_cast<const char*>(Bytes.GetData()), static_cast<size_t>(Bytes.Num()));
	try
	{
		const nlohmann::json Document = nlohmann::json::parse(Text);
		return ReadDocument(FServiceDocumentValue(Document, ""), FPaths::GetPath(Path));
	}
	catch (const nlohmann::json::parse_error& Error)
	{
		OutError = FString::Printf(TEXT("%s: %s"), *Path, *DescribeParseError(Text, Error));
	}
	catch (const nlohmann::json::out_of_range& Error)
	{
		OutError = FString::Printf(TEXT("%s: this is not JSON: %s"), *Path, UTF8_TO_TCHAR(Error.what())); // a number that no type can hold
	}
	catch (const FServiceDocumentError& Error)
	{
		OutError = FString::Printf(TEXT("%s: %s"), *Path, UTF8_TO_TCHAR(Error.what()));
	}
	return {};
}
