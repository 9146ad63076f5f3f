<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>DataFiles</name>
    <message>
        <source>%1 Nothing is lost: the editor keeps all your changes. Make room on the disk, or permit writing, and save again.</source>
        <extracomment>%1 is a sentence that names a file and says why it cannot be written.</extracomment>
        <translation>%1変更はすべてエディターに残っています。ディスクの空きを増やすか、書き込みを許可してから、もう一度保存してください。</translation>
    </message>
    <message>
        <source>The project&apos;s file &quot;%1&quot; is damaged at line %2 (%3). Mend that line, or put a whole copy of the file in its place, and open the project again.</source>
        <extracomment>%1 is a file&apos;s path, %2 the number of a line, %3 what the JSON reader says of it.</extracomment>
        <translation>プロジェクトのファイル「%1」は%2行目が壊れています（%3）。その行を直すか、壊れていないファイルと置き換えてから、もう一度プロジェクトを開いてください。</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Save the changes in &quot;%1&quot;?</source>
        <extracomment>%1 is the name of the open project.</extracomment>
        <translation>「%1」の変更を保存しますか？</translation>
    </message>
    <message>
        <source>What you have changed since you saved it last is lost otherwise.</source>
        <translation>保存しないと、最後に保存したあとの変更は失われます。</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>A button: save the project, then leave it.</extracomment>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t save</source>
        <extracomment>A button: leave the project without saving it.</extracomment>
        <translation>保存しない(&amp;D)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>A button: go on with the project as it is.</extracomment>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>LessonPanel</name>
    <message>
        <source>Start</source>
        <translation>始める</translation>
    </message>
    <message>
        <source>Skip step</source>
        <translation>この手順を飛ばす</translation>
    </message>
    <message>
        <source>Lessons</source>
        <translation>レッスン</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>最初から</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <extracomment>How far the lesson is: %1 is the number of the step, %2 how many there are.</extracomment>
        <translation>手順 %1 / %2</translation>
    </message>
    <message>
        <source>Open &quot;%1&quot; again, or skip the step.</source>
        <extracomment>%1 is the title of a window that the person has closed.</extracomment>
        <translation>「%1」をもう一度開くか、手順を飛ばしてください。</translation>
    </message>
    <message>
        <source>The lesson is finished.</source>
        <translation>レッスンが終わりました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <extracomment>%1 is the title of a lesson.</extracomment>
        <translation>「%1」を開けません。</translation>
    </message>
    <message>
        <source>The guide does not answer.</source>
        <translation>ガイドが応答しません。</translation>
    </message>
</context>
<context>
    <name>LessonProject</name>
    <message>
        <source>The data files of the lesson have not come, so &quot;%1&quot; is without them. Start the lesson again.</source>
        <extracomment>%1 is the name of the project.</extracomment>
        <translation>レッスンのデータファイルが届いていないため、「%1」にはデータファイルがありません。もう一度、レッスンを最初から始めてください。</translation>
    </message>
</context>
<context>
    <name>PracticeEditor</name>
    <message>
        <source>The editor cannot listen on &quot;%1&quot;: %2. Start it again with another --key, or without one.</source>
        <extracomment>%1 is the name of a local server, %2 the system&apos;s reason.</extracomment>
        <translation>「%1」で接続を待てません（%2）。別の --key を付けるか、--key を付けずに、もう一度起動してください。</translation>
    </message>
    <message>
        <source>The guide &quot;%1&quot; does not start: %2. Build the target Tutorial, or name the program with --companion.</source>
        <extracomment>The guide is the companion program; %1 is its path, %2 the system&apos;s reason.</extracomment>
        <translation>ガイド「%1」を起動できません（%2）。ターゲット Tutorial をビルドするか、--companion でプログラムを指定してください。</translation>
    </message>
    <message>
        <source>The guide ended unexpectedly. Your project is not affected.
Restart it? The lesson begins again.</source>
        <extracomment>Asks whether the guide is to be started again.</extracomment>
        <translation>ガイドが突然終了しました。プロジェクトには影響ありません。
もう一度起動しますか？レッスンは最初から始まります。</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>A button: start the guide again.</extracomment>
        <translation>もう一度起動</translation>
    </message>
    <message>
        <source>Go on without</source>
        <extracomment>A button: go on without the guide.</extracomment>
        <translation>ガイドなしで続ける</translation>
    </message>
    <message>
        <source>Something went wrong.</source>
        <translation>問題が起きました。</translation>
    </message>
    <message>
        <source>Practice editor</source>
        <translation>練習用エディター</translation>
    </message>
</context>
<context>
    <name>ProjectFolder</name>
    <message>
        <source>A project cannot have the name &quot;%1&quot;: its folder is named after it. Choose another name, without &quot;/&quot;.</source>
        <extracomment>%1 is the name that the person gave a new project.</extracomment>
        <translation>プロジェクトの名前を「%1」にはできません。プロジェクトの名前は、フォルダーの名前にもなるためです。「/」を含まない別の名前にしてください。</translation>
    </message>
    <message>
        <source>The project cannot hold the file &quot;%1&quot;: it would lie outside of the project&apos;s folder.</source>
        <extracomment>%1 is a path inside the project.</extracomment>
        <translation>ファイル「%1」は、プロジェクトのフォルダーの外に置かれてしまうため、プロジェクトに入れられません。</translation>
    </message>
    <message>
        <source>The project&apos;s folder cannot be made in &quot;%1&quot; (%2). Choose another place.</source>
        <extracomment>%1 is a folder, %2 the system&apos;s reason.</extracomment>
        <translation>「%1」にプロジェクトのフォルダーを作れません（%2）。別の場所を選んでください。</translation>
    </message>
    <message>
        <source>The project&apos;s folder &quot;%1&quot; cannot be made. Choose another name or place.</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>プロジェクトのフォルダー「%1」を作れません。名前か場所を変えてください。</translation>
    </message>
    <message>
        <source>The project&apos;s file &quot;%1&quot; cannot be written (%2).</source>
        <extracomment>%1 is the file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>プロジェクトのファイル「%1」に書き込めません（%2）。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no project: it has no data files. Choose another folder.</source>
        <extracomment>%1 is a folder.</extracomment>
        <translation>「%1」にはデータファイルがなく、プロジェクトではありません。別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The project&apos;s file &quot;%1&quot; cannot be read (%2). Permit reading it, and open the project again.</source>
        <extracomment>%1 is the file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>プロジェクトのファイル「%1」を読み込めません（%2）。読み取りを許可してから、もう一度プロジェクトを開いてください。</translation>
    </message>
    <message>
        <source>The project&apos;s folder &quot;%1&quot; cannot be read: you are not permitted to list its files. Permit it, and open the project again.</source>
        <extracomment>%1 is a folder.</extracomment>
        <translation>プロジェクトのフォルダー「%1」を読み込めません。中のファイルを一覧する許可がないためです。許可してから、もう一度プロジェクトを開いてください。</translation>
    </message>
</context>
</TS>
