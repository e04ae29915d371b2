// Copyright Velmorant. All Rights Reserved.

#include "ServiceDataReader.h"

#include "Misc/Paths.h"
#include "ServiceDocument.h"

namespace ServiceDataReader
{
	/** Key codes and names identify things: a second one of the same text would never be found. */
	class FUniqueNames
	{
	public:
		/** @param Member of Value that has the name */
		void Add(const FString& Name, const FServiceDocumentValue& Value, std::string_view Member)
		{
			const int32 Place = Places.Num();
			if (Places.FindOrAdd(Name, Place) != Place)
			{
				Value.Get(Member).Fail(std::string("\"") + TCHAR_TO_UTF8(*Name) + "\" is there already; letter case does not count");
			}
		}

		/** The number of names that were added before; INDEX_NONE when this one was not. */
		int32 Find(const FString& Name) const
		{
			const int32* Place = Places.Find(Name);
			return Place ? *Place : INDEX_NONE;
		}

	private:
		TMap<FString, int32> Places;
	};

	FServiceUser ReadUser(const FServiceDocumentValue& Value, const FUniqueNames& ProjectKeyCodes, const FString& Folder)
	{
		Value.AllowMembers({"userName", "password", "firstName", "lastName", "email", "picture", "projects"});
		FServiceUser User;
		User.UserName = Value.GetName("userName");
		User.Password = Value.GetName("password");
		User.LoginInfo.FirstName = Value.GetString("firstName", FString());
		User.LoginInfo.LastName = Value.GetString("lastName", FString());
		User.LoginInfo.Email = Value.GetString("email", FString());
		User.PictureFile = Value.Has("picture") ? FPaths::Combine(Folder, Value.GetName("picture")) : FString();
		Value.ForEach("projects", [&](const FServiceDocumentValue& KeyCode) {
			const FString& Added = User.ProjectKeyCodes.Add_GetRef(KeyCode.AsString());
			if (ProjectKeyCodes.Find(Added) == INDEX_NONE)
			{
				KeyCode.Fail("there is no project with this key code");
			}
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
			KeyCodes.Add(Data.KeyCode, Unit, "keyCode");
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

	/** @param KeyCodes of the unit groups, in their order */
	FVelmorantConfiguratorRecord ReadConfigurator(const FServiceDocumentValue& Value, const TArray<FVelmorantUnitGroupRecord>& UnitGroups, const FUniqueNames& KeyCodes)
	{
		Value.AllowMembers({"name", "recordName", "unitGroups", "rooms"});
		FVelmorantConfiguratorRecord Record;
		const FString Name = Value.GetName("name");
		Record.Name = FName(Name);
		Record.Units.Add(FName(Value.GetString("recordName", Name)), ReadRooms(Value));
		Value.ForEach("unitGroups", [&](const FServiceDocumentValue& KeyCode) {
			const int32 Place = KeyCodes.Find(KeyCode.AsString());
			if (Place == INDEX_NONE)
			{
				KeyCode.Fail("there is no unit group with this key code in the project");
			}
			const FUnitGroupData& UnitGroup = UnitGroups[Place].Group;
			FVelmorantConfiguratorUnitGroup& Entry = Record.UnitGroups.AddDefaulted_GetRef();
			Entry.Key = UnitGroup.KeyCode;
			Entry.Name = UnitGroup.Name;
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
			KeyCodes.Add(Result.UnitGroups.Last().Group.KeyCode, UnitGroup, "keyCode");
		});

		FUniqueNames Names;
		Value.ForEach("configurators", [&](const FServiceDocumentValue& Configurator) {
			Result.Configurators.Add(ReadConfigurator(Configurator, Result.UnitGroups, KeyCodes));
			Names.Add(Configurator.GetString("name"), Configurator, "name");
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
			KeyCodes.Add(Data.Projects.Last().Project.KeyCode, Project, "keyCode");
		});

		FUniqueNames UserNames;
		Document.ForEach("users", [&](const FServiceDocumentValue& User) {
			Data.Users.Add(ReadUser(User, KeyCodes, Folder));
			UserNames.Add(Data.Users.Last().UserName, User, "userName");
		});

		Document.ForEach("failingRequests", [&](const FServiceDocumentValue& Request) { Data.FailingRequests.Add(ReadRequest(Request)); });
		return Data;
	}
}

TOptional<FServiceData> ServiceDataReader::Read(std::string_view Json, const FString& Folder, FString& OutError)
{
	try
	{
		const FServiceDocument Document(Json);
		return ReadDocument(FServiceDocumentValue(Document), Folder);
	}
	catch (const FServiceDocumentError& Error)
	{
		OutError = UTF8_TO_TCHAR(Error.what());
	}
	return {};
}
