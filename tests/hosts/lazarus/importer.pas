// Writes the unit that Free Pascal's importer makes of a type library: importer LIBRARY FOLDER.
program importer;
{$mode delphi}
uses
  Classes, SysUtils, ActiveX, TypeLib;
var
  Import: TTypeLibImporter;
begin
  CoInitialize(nil);
  Import := TTypeLibImporter.Create(nil);
  Import.InputFileName := ParamStr(1);
  Import.ActiveX := True;
  Import.Execute;
  Import.UnitSource.SaveToFile(IncludeTrailingPathDelimiter(ParamStr(2)) + Import.UnitName + '.pas');
  Writeln('wrote ', Import.UnitName);
end.
