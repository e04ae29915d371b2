// Copyright Velmorant. All Rights Reserved.

#include "ProjectOnDisk.h"

/** A designer's own property, made by nothing but a script. */
class BuildByScript : public FProjectOnDisk
{
protected:
	BuildByScript() { MakeProject(); }
};

TEST_F(BuildByScript, FromNothingToASavedLevelWithActorsAndAssets)
{
	Do("press Skip\n"
	   "new level\n"
	   "make asset MinimapConfigAsset /Game/Flats/Floors\n"
	   "make asset VelmorantConfiguratorDataAsset /Game/Flats/Garden\n"
	   "inspect /Game/Flats/Garden\n"
	   "type Details ConfiguratorName \"Garden Flat\"\n"
	   "place actor UnitVolumeActor at \"X=100 Y=0 Z=250\" as \"Garden flat\"\n"
	   "expect selected \"Garden flat\"\n"
	   "place actor UnitVolumeActor as \"Roof flat\"\n"
	   "move actor \"Roof flat\" \"X=0 Y=0 Z=900\"\n"
	   "rename actor \"actor:Roof flat\" Penthouse\n"
	   "place \"Sun Sky Velmorant\" at \"X=0 Y=0 Z=6000\" as Sun\n"
	   "save level /Game/Maps/Own\n"
	   "save\n"
	   "restart\n"
	   "open level /Game/Maps/Own\n"
	   "expect actors UnitVolumeActor 2\n"
	   "expect property \"actor:Garden flat\" ActorLocation.X 100\n"
	   "expect property actor:Penthouse ActorLocation.Z 900\n"
	   "expect property actor:Sun ActorLocation.Z 6000\n"
	   "expect property /Game/Flats/Garden ConfiguratorName \"Garden Flat\"\n"
	   "expect asset /Game/Flats/Floors class MinimapConfigAsset\n"
	   "delete actors Penthouse Sun\n"
	   "expect actors UnitVolumeActor 1\n"
	   "answer DeleteAssets Delete\n"
	   "delete assets /Game/Flats/Floors\n"
	   "expect no asset /Game/Flats/Floors\n"
	   "save\n");
	EXPECT_TRUE(Folder.Exists("Project/Content/Maps/Own.umap.json"));
	EXPECT_FALSE(Folder.Exists("Project/Content/Flats/Floors.uasset.json"));
}

TEST_F(BuildByScript, EachActOnActorsIsOneStepOfUndo)
{
	Do("press Skip\n"
	   "new level\n"
	   "place actor UnitVolumeActor at \"X=100 Y=0 Z=0\" as Flat\n"
	   "move actor Flat \"X=200 Y=0 Z=0\"\n"
	   "rename actor Flat Loft\n"
	   "place actor UnitVolumeActor as Second\n"
	   "delete actors Loft Second\n"
	   "expect actors UnitVolumeActor 0\n"
	   "undo\nexpect actors UnitVolumeActor 2\n"
	   "undo\nexpect actors UnitVolumeActor 1\n"
	   "undo\nexpect property actor:Flat ActorLocation.X 200\n"
	   "move actor Flat \"X=200 Y=0 Z=0\"\n" // changes nothing: no step
	   "undo\nexpect property actor:Flat ActorLocation.X 100\n"
	   "undo\nexpect actors UnitVolumeActor 0\n"
	   "redo\nexpect property actor:Flat ActorLocation.X 100\n");
}

TEST_F(BuildByScript, NothingIsDeletedUnlessAllOfItIsThere)
{
	const FProgramResult Result = RunScript("new level\nplace actor UnitVolumeActor as Flat\nsave level /Game/Maps/Own\ndelete actors Flat Nobody\n");
	EXPECT_EQ(Result.ExitStatus, 3);
	Do("open level /Game/Maps/Own\nexpect actors UnitVolumeActor 1\n");
}

TEST_F(BuildByScript, LevelsByNameStayInTheirAssetWhenItIsRenamed)
{
	Folder.Write("Project/Content/Levels.uasset.json", R"({"Class": "/Script/VelmorantPro.VelmorantMapsLinkerConfig", "Format": 1, "Objects": [
		{"Name": "Levels", "Class": "/Script/VelmorantPro.VelmorantMapsLinkerConfig", "Properties": {"Maps": [
			{"Key": "Lobby", "Value": "/Game/Maps/Lobby.Lobby"}, {"Key": "Roof", "Value": "/Game/Maps/Roof.Roof"}]}}]})");
	const std::string Maps = R"x("((\"Lobby\", \"/Game/Maps/Lobby.Lobby\"),(\"Roof\", \"/Game/Maps/Roof.Roof\"))")x";
	Do("press Skip\n"
	   "expect property /Game/Levels Maps " +
		Maps + "\n"
			   "rename asset /Game/Levels /Game/Linked/All\n"
			   "save\n"
			   "restart\n"
			   "expect property /Game/Linked/All Maps " +
		Maps + "\n");
	EXPECT_FALSE(Folder.Exists("Project/Content/Levels.uasset.json"));
}
