@echo off
rem Registers Vela.ocx where this folder stands: install.cmd [/user] [/silent]
rem For every user, which needs an administrator, or with /user for the user who runs it; for 64-bit and 32-bit programs
rem where the system has both. Ends with 0, or with 1 when something could not be registered. /silent waits for no key.
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
echo install.cmd [/user] [/silent]
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
if /i "%architecture%"=="AMD64" call :register "%native%\regsvr32.exe" win64
if exist "%SystemRoot%\SysWOW64\regsvr32.exe" call :register "%SystemRoot%\SysWOW64\regsvr32.exe" win32
goto end
:only32
call :register "%native%\regsvr32.exe" win32
:end
if "%silent%"=="no" pause
exit /b %failed%

:register
if "%scope%"=="user" goto registeruser
"%~1" /s "%here%%2\Vela.ocx"
if errorlevel 1 goto refused
echo Registrado para todos / Registered for every user: %here%%2\Vela.ocx
exit /b 0
:registeruser
"%~1" /s /n /i:user "%here%%2\Vela.ocx"
if errorlevel 1 goto refused
echo Registrado para este usuário / Registered for this user: %here%%2\Vela.ocx
exit /b 0
:refused
echo Falhou o registro de / Could not register: %here%%2\Vela.ocx
set failed=1
exit /b 1

:administrator
reg add HKLM\Software\Classes\Vela.install.cmd /f >nul 2>nul
if errorlevel 1 goto noadministrator
reg delete HKLM\Software\Classes\Vela.install.cmd /f >nul 2>nul
exit /b 0
:noadministrator
echo Abra o prompt como administrador, ou use install.cmd /user.
echo Open the prompt as administrator, or use install.cmd /user.
set failed=1
exit /b 1

:unpack
echo Falta win32\Vela.ocx ao lado deste arquivo: extraia antes o zip inteiro.
echo win32\Vela.ocx is missing beside this file: unpack the whole zip first.
set failed=1
goto end
