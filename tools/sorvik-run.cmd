@echo off
rem Runs one task of sorvikPre and returns 0 if it did its work, else 1.
setlocal EnableExtensions DisableDelayedExpansion
set "version=@PROJECT_VERSION@"
set "home=%~dp0"
set "work=" & set "page=" & set "reason=" & set "quiet=" & set "checked=yes"
set "task=" & set "args=" & set "mesh=" & set "file1=" & set "file2=" & set "folder="
set "wet=" & set "origin=" & set "domain=" & set "api=" & set "f=" & set "i=" & set "o=" & set "output="

:options
if "%~1"=="-h" goto usage
if "%~1"=="--help" goto usage
if "%~1"=="--version" echo sorvik-run %version%& exit /b 0
if "%~1"=="-q" set "quiet=yes"& shift & goto options
if "%~1"=="--no-check" set "checked="& shift & goto options

rem The arguments: which task, which files.
:next
if [%1]==[] goto run
set "flag=%~1"
set "values="
for %%F in (-nemoh -waveElevation -toJSON -API -positions) do if "%flag%"=="%%F" set "values=0"
for %%F in (-wet -f -i -o -output -r -results -startState -xyFile) do if "%flag%"=="%%F" set "values=1"
for %%F in (0 1 2 3 4 5 6 7 8 9 .) do if "%flag:~1,1%"=="%%F" set "values=0"
if not "%flag:~0,1%"=="-" set "values=0"
if "%flag%"=="-meshConvert" set "values=2"
if "%flag%"=="-origin" set "values=3"
if "%flag%"=="-domain" set "values=4"
for %%F in (-meshConvert -nemoh -waveElevation -toJSON) do if "%flag%"=="%%F" set "task=%task%%%F"
if defined checked if not defined values set "reason=unknown flag %flag%; see --help"& goto fail
if not defined values set "values=0"
if "%flag%"=="-API" set "api=yes"
if "%flag%"=="-domain" set "domain=yes"
if "%flag%"=="-meshConvert" if not defined mesh set "mesh=%~2"& set "file1=%~3"
if "%flag%"=="-origin" if not defined origin set "origin=--origin %~2 %~3 %~4"
if "%flag%"=="-wet" if not defined wet set "wet=%~2"
if "%flag%"=="-f" if not defined f set "f=%~2"
if "%flag%"=="-i" if not defined i set "i=%~2"
if "%flag%"=="-o" if not defined o set "o=%~2"
if "%flag%"=="-output" if not defined output set "output=%~2"
set left=%values%
:value
set args=%args% %1
shift
if %left%==0 goto next
if [%1]==[] if defined checked set "reason=expected %values% after %flag%"& goto fail
if [%1]==[] goto run
set /a left-=1
goto value

:run
for %%F in (-meshConvert -nemoh -waveElevation -toJSON) do if "%task%"=="%%F" goto oneTask
set "reason=expected one task, found several: %task%"
if not defined task set "reason=expected -meshConvert, -nemoh, -waveElevation or -toJSON; see --help"
goto fail
:oneTask
set "program=%SORVIK_PRE%"
if not defined program if exist "%home%sorvikPre.exe" set "program=%home%sorvikPre.exe"
if not defined program for %%P in (sorvikPre.exe) do set "program=%%~$PATH:P"
if not defined program set "reason=cannot find sorvikPre; set SORVIK_PRE to its path"& goto fail
set "checker=%SORVIK_CHECK%"
if not defined checker if exist "%home%sorvikCheck.exe" set "checker=%home%sorvikCheck.exe"
if not defined checked set "checker="
set "find=%SystemRoot%\System32\find.exe"
set "work=%TEMP%\sorvik-run.%RANDOM%.%RANDOM%"
mkdir "%work%"
if not exist "%work%\" set "reason=no room in %TEMP%"& set "work="& goto fail
rem The programs write UTF-8.
for /f "tokens=2 delims=:." %%C in ('chcp') do set "page=%%C"
chcp 65001 >nul 2>nul
set "input=%f%"
if not defined input set "input=%i%"
call :findOutputs
if defined reason goto fail
call :checkBefore
if defined reason goto fail
"%program%"%args% >"%work%\said"
set "status=%errorlevel%"
if "%status%"=="-1" set "status=255"
if not defined quiet type "%work%\said"
if defined quiet call :typeQuietly
call :checkSuccess
if defined reason goto fail
call :checkFile "%file1%"
if not defined reason if defined file2 call :checkFile "%file2%"
if defined reason goto fail
call :checkAfter
if defined reason goto fail
call :cleanUp
exit /b 0

:fail
>&2 echo sorvik-run: %reason%
call :cleanUp
exit /b 1

:cleanUp
if defined work rmdir /s /q "%work%"
if defined page chcp %page% >nul 2>nul
exit /b

rem The one or two files that the task should write, and the folder that it makes for them.
:findOutputs
if "%task%"=="-toJSON" call :withoutExtension "%input%"
if "%task%"=="-toJSON" set "file1=%value%.json"& exit /b
if "%task%"=="-nemoh" call :setting bem output
if "%task%"=="-nemoh" set "folder=%value%"& set "file1=%value%\Nemoh.cal"& set "file2=%value%\input_solver.txt"& exit /b
if not "%task%"=="-waveElevation" exit /b
set "value=%output%"
if not defined value set "value=%o%"
if defined api call :setting API output
if defined value goto named
set "value=sorvikResults"
if defined input call :withoutExtension "%input%"
:named
set "folder=%value%"
set "file1=%value%\waveElevation.dat"
if defined domain set "file2=%value%\waveDomain.dat"
exit /b

:withoutExtension
set "value=%~dpn1"
exit /b

rem setting GROUP KEY: a text of the input. The input language has aliases and groups, so the program reads it:
rem from its JSON, in which every member is a line.
:setting
set "value=" & set "group=" & set "ending=m"
if not "%input:.json=%"=="%input%" set "ending=json"
if not exist "%work%\input.json" (
    copy "%input%" "%work%\input.%ending%" >nul 2>nul
    "%program%" -toJSON -f "%work%\input.%ending%" >nul 2>nul
)
if not exist "%work%\input.json" exit /b
for /f "usebackq tokens=1,* delims=:	 " %%K in ("%work%\input.json") do (
    set "key=%%~K"
    set "text=%%L"
    call :member %1 %2
)
exit /b

:member
if not defined text exit /b
set "text=%text:"=%"
if "%text:~-1%"=="," set "text=%text:~0,-1%"
if "%text%"=="{" set "group=%key%"& exit /b
if "%group%.%key%"=="%1.%2" set "value=%text%"
exit /b

rem Refuses on errors, after their report. The program ignores flags that it does not know.
:checkBefore
if not defined checker exit /b
if "%task%"=="-meshConvert" set "hull=%mesh%"& goto checkHull
set "ask=input "%input%""
if "%task%"=="-nemoh" set "ask=%ask% --task nemoh"
if "%task%"=="-waveElevation" if not defined input exit /b
if "%task%"=="-waveElevation" set "ask=%ask% --task wave"
goto check

:checkAfter
if not defined checker exit /b
if "%task%"=="-nemoh" set "ask=project "%folder%""& goto check
if not "%task%"=="-meshConvert" exit /b
set "origin="
set "hull=%file1%"
for %%E in (.dat .DAT .nem .stl .STL) do if "%file1:~-4%"=="%%E" goto checkHull
exit /b

rem Where all of a mesh is converted, it may be open or lie anywhere.
:checkHull
set "ending=%file1:~-4%"
set "level=%wet%"
for %%E in (.dat .DAT .nem) do if "%ending%"=="%%E" if not defined level set "level=0"
set "ask=hull "%hull%" %origin% --records"
if defined level set "ask=hull "%hull%" %origin% --level %level%"
:check
"%checker%" %ask% >"%work%\report" 2>&1
if "%errorlevel%"=="0" exit /b
type "%work%\report" >&2
set "reason=sorvikCheck found errors; --no-check leaves it out"
exit /b

:typeQuietly
set "isUsage="
for /f "usebackq delims=" %%L in ("%work%\said") do (
    set "line=%%L"
    call :line
    if not defined isUsage echo.%%L
)
exit /b

:line
set "line=%line:"=%"
if "%line:~0,23%"==" SorvikPre is a utility" set "isUsage=yes"
exit /b

rem Status and success line differ from task to task. -nemoh and -toJSON end with 1, and so do errors.
:checkSuccess
set "good=0"
set "says="
if "%task%"=="-nemoh" set "good=1"& set "says=Adding load cases"
if "%task%"=="-toJSON" set "good=1"
if "%task%"=="-meshConvert" set "says=Successfully converted mesh"
if "%task%"=="-waveElevation" set "says=Wave elevation computed and printed to"
if not "%status%"=="%good%" set "reason=%task% ended with status %status%, not %good%"& exit /b
"%find%" "FATAL ERROR" <"%work%\said" >nul
if "%errorlevel%"=="0" set "reason=the task ended with a fatal error"& exit /b
if not defined says exit /b
"%find%" "%says%" <"%work%\said" >nul
if not "%errorlevel%"=="0" set "reason=the task did not say "%says%""
exit /b

:checkFile
set "value=%~a1"
if "%value:~0,1%"=="d" set "reason=%~1 is a folder"& exit /b
if not exist "%~1" set "reason=%~1 is missing"& exit /b
if "%~z1"=="0" set "reason=%~1 is empty"& exit /b
if "%task%"=="-toJSON" goto checkJson
if not "%task%"=="-waveElevation" exit /b
rem A line holds the time and an elevation for each probe.
set "row="
set /p row=<"%~1"
set "value="
for /f "tokens=2" %%P in ("%row%") do set "value=%%P"
if not defined value set "reason=%~1 holds no probes"
exit /b

:checkJson
for /f "usebackq delims=" %%L in ("%file1%") do (
    if "%%L"=="{" exit /b
    goto emptyJson
)
:emptyJson
set "reason=%file1% holds nothing"
exit /b

:usage
echo Usage: sorvik-run [-q] [--no-check] ARGUMENTS...
echo.
echo Runs one task of sorvikPre with the same arguments and shows its output at the end.
echo Checks what the task reads and writes by sorvikCheck, where that is installed, and
echo refuses on errors. Returns 0 if the task reports success and its files are there,
echo otherwise 1, with the reason on standard error.
echo.
echo     sorvik-run -meshConvert IN OUT [-origin X Y Z] [-wet LEVEL]
echo     sorvik-run -nemoh -f INPUT
echo     sorvik-run -waveElevation -f INPUT [-xyFile FILE ^| -domain X Y NX NY] -o FOLDER
echo     sorvik-run -toJSON -f INPUT
echo.
echo Options, before the arguments:
echo     -q          leave the usage text of sorvikPre out
echo     --no-check  leave out the checks by sorvikCheck and that of the flags
echo     -h, --help  print this text
echo     --version   print the version
echo.
echo The program is the one that the environment variable SORVIK_PRE names, else sorvikPre.exe
echo in the folder of sorvik-run, else the first one in PATH. SORVIK_CHECK names sorvikCheck,
echo which else is the one in the folder of sorvik-run.
exit /b 0
