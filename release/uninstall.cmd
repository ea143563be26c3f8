@echo off
rem Takes away what install.cmd registered: uninstall.cmd [/user] [/silent]
rem For every user, which needs an administrator, or with /user for the user who runs it; of 64-bit and 32-bit programs
rem where the system has both. Ends with 0, or with 1 when something could not be removed. /silent waits for no key.
setlocal
rem shift would take the name of this file along
set "here=%~dp0"
set scope=machine
set silent=no
set failed=0
:words
if "%~1"=="" goto start
if /i "%~1"=="/user" goto user
if /i "%~1"=="/silent" goto silent
echo uninstall.cmd [/user] [/silent]
exit /b 2
:user
set scope=user
shift
goto words
:silent
set silent=yes
shift
goto words

:start
if not exist "%here%win32\Vela.ocx" goto unpack
if "%scope%"=="machine" call :administrator
if %failed%==1 goto end
set native=%SystemRoot%\System32
if exist "%SystemRoot%\Sysnative\regsvr32.exe" set native=%SystemRoot%\Sysnative
set architecture=%PROCESSOR_ARCHITECTURE%
if defined PROCESSOR_ARCHITEW6432 set architecture=%PROCESSOR_ARCHITEW6432%
if /i "%architecture%"=="x86" goto only32
if /i "%architecture%"=="AMD64" call :remove "%native%\regsvr32.exe" win64
if exist "%SystemRoot%\SysWOW64\regsvr32.exe" call :remove "%SystemRoot%\SysWOW64\regsvr32.exe" win32
goto end
:only32
call :remove "%native%\regsvr32.exe" win32
:end
if "%silent%"=="no" pause
exit /b %failed%

:remove
if "%scope%"=="user" goto removeuser
"%~1" /s /u "%here%%2\Vela.ocx"
if errorlevel 1 goto refused
echo Removido para todos / Removed for every user: %here%%2\Vela.ocx
exit /b 0
:removeuser
"%~1" /s /u /n /i:user "%here%%2\Vela.ocx"
if errorlevel 1 goto refused
echo Removido para este usuário / Removed for this user: %here%%2\Vela.ocx
exit /b 0
:refused
echo Falhou a remoção de / Could not remove: %here%%2\Vela.ocx
set failed=1
exit /b 1

:administrator
reg add HKLM\Software\Classes\Vela.uninstall.cmd /f >nul 2>nul
if errorlevel 1 goto noadministrator
reg delete HKLM\Software\Classes\Vela.uninstall.cmd /f >nul 2>nul
exit /b 0
:noadministrator
echo Abra o prompt como administrador, ou use uninstall.cmd /user.
echo Open the prompt as administrator, or use uninstall.cmd /user.
set failed=1
exit /b 1

:unpack
echo Falta win32\Vela.ocx ao lado deste arquivo: extraia antes o zip inteiro.
echo win32\Vela.ocx is missing beside this file: unpack the whole zip first.
set failed=1
goto end
