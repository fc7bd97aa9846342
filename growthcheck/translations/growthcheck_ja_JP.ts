<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>MBEMain</name>
    <message>
        <source>Be</source>
        <translation>Be</translation>
    </message>
    <message>
        <source>Ga</source>
        <translation>Ga</translation>
    </message>
    <message>
        <source>Si</source>
        <translation>Si</translation>
    </message>
    <message>
        <source>As4</source>
        <translation>As4</translation>
    </message>
    <message>
        <source>Al</source>
        <translation>Al</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In</translation>
    </message>
    <message>
        <source>As7</source>
        <translation>As7</translation>
    </message>
    <message>
        <source>Main Ch</source>
        <translation>成長室</translation>
    </message>
    <message>
        <source>Pre Ch</source>
        <translation>準備室</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Says what the station will do with a growth program, and, compared with its
journal, what it did.</source>
        <translation>成長プログラムで操作盤が何をするかを前もって示し、ジャーナルと比べて
何をしたかを示します。</translation>
    </message>
    <message>
        <source>A channel&apos;s temperature at the start, deg C, or &quot;none&quot; for one that the panel shows none of. May be given for several channels.</source>
        <translation>開始時のチャネルの温度 [℃]。表示がないものは &quot;none&quot;。複数指定できます。</translation>
    </message>
    <message>
        <source>The temperature of all others.</source>
        <translation>そのほか全チャネルの温度。</translation>
    </message>
    <message>
        <source>Takes them from the last minute that a journal tells.</source>
        <translation>ジャーナルの最後の minute 行から取ります。</translation>
    </message>
    <message>
        <source>When Run is pressed, such as 2026-11-22T08:00: clock times are told then.</source>
        <translation>開始を押す時刻（例 2026-11-22T08:00）。時刻も表示します。</translation>
    </message>
    <message>
        <source>How long the operator waits at each hold (0).</source>
        <translation>待機点ごとに操作者が待つ秒数 (0)。</translation>
    </message>
    <message>
        <source>How long controllers take to reply (10).</source>
        <translation>調節計が応答するまでのミリ秒 (10)。</translation>
    </message>
    <message>
        <source>Adds what grows: nm/s a cell, a line each, such as &quot;Ga 0.28&quot;.</source>
        <translation>成長層を加えます。1 行に 1 セルの nm/s（例 &quot;Ga 0.28&quot;）。</translation>
    </message>
    <message>
        <source>Writes all of it for programs.</source>
        <translation>すべてを JSON で書き出します。</translation>
    </message>
    <message>
        <source>Writes the timeline as a table, an event a line.</source>
        <translation>時系列を表にし、1 行に 1 件書き出します。</translation>
    </message>
    <message>
        <source>Writes shutters and set points for waveform viewers.</source>
        <translation>シャッターと設定値を波形表示用に書き出します。</translation>
    </message>
    <message>
        <source>Writes the bytes that the instruments get, with their times.</source>
        <translation>機器が受け取るバイト列を時刻とともに書き出します。</translation>
    </message>
    <message>
        <source>Writes a page with a picture to this file.</source>
        <translation>図の付いたページをこのファイルに書きます。</translation>
    </message>
    <message>
        <source>compare: the run of the journal, counted from 1 (the last one that fits).</source>
        <translation>compare: ジャーナルの何番目の実行か（合う最後のもの）。</translation>
    </message>
    <message>
        <source>en or ja (the system&apos;s).</source>
        <translation>en か ja（システムの言語）。</translation>
    </message>
    <message>
        <source>Shows this and ends.</source>
        <translation>これを表示して終わります。</translation>
    </message>
    <message>
        <source>Shows the version and ends.</source>
        <translation>版を表示して終わります。</translation>
    </message>
    <message>
        <source>Exit status:
  0   nothing was found, or notes only
  1   something was found that is a warning or an error; compare: shutters
      or set points were not as planned
  2   a file cannot be read or written
  64  the command line is wrong
</source>
        <translation>終了コード:
  0   何もないか、注記のみ
  1   警告か誤りがある。compare: シャッターか設定値が計画と違う
  2   ファイルを読めない、または書けない
  64  コマンド行の誤り
</translation>
    </message>
    <message>
        <source>--%1 %2: %3 wanted</source>
        <translation>--%1 %2: %3が必要です</translation>
    </message>
    <message>
        <source>CELL=DEGC, such as Ga=850 or &quot;Main Ch=none&quot;,</source>
        <translation>Ga=850 や &quot;Main Ch=none&quot; のような CELL=DEGC </translation>
    </message>
    <message>
        <source>a time such as 2026-11-22T08:00</source>
        <translation>2026-11-22T08:00 のような時刻</translation>
    </message>
    <message>
        <source>seconds, not below 0,</source>
        <translation>0 以上の秒数</translation>
    </message>
    <message>
        <source>a number from 0 to 3000</source>
        <translation>0 から 3000 までの数</translation>
    </message>
    <message>
        <source>a number from 1 on</source>
        <translation>1 以上の数</translation>
    </message>
    <message>
        <source>en or ja</source>
        <translation>en か ja </translation>
    </message>
    <message>
        <source>only one of --json, --csv, --vcd, --wire and --html at a time</source>
        <translation>--json、--csv、--vcd、--wire、--html は一度に一つだけです</translation>
    </message>
    <message>
        <source>compare wants a program and a journal</source>
        <translation>compare にはプログラムとジャーナルが必要です</translation>
    </message>
    <message>
        <source>compare has no --vcd and no --wire</source>
        <translation>compare に --vcd と --wire はありません</translation>
    </message>
    <message>
        <source>no program is named</source>
        <translation>プログラムの指定がありません</translation>
    </message>
    <message>
        <source>--vcd, --wire and --html want one program</source>
        <translation>--vcd、--wire、--html のプログラムは一つです</translation>
    </message>
    <message>
        <source>--html %1: that is a program&apos;s or a journal&apos;s name</source>
        <translation>--html %1: プログラムかジャーナルの名前です</translation>
    </message>
    <message>
        <source>--html %1: that file is read</source>
        <translation>--html %1: 読み込むファイルです</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読めません: %2</translation>
    </message>
    <message>
        <source>it is missing, no plain file, larger than 16 MiB, or not to be opened</source>
        <translation>存在しない、通常のファイルでない、16 MiB を超える、または開けません</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書けません: %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1、ほか %2 行</translation>
    </message>
    <message>
        <source>No line of the file says a step: the table is empty afterwards, and a run ends at once.</source>
        <translation>ステップの行がありません。読み込むと表は空になり、開始してもすぐ終わります。</translation>
    </message>
    <message>
        <source>Fewer than 20 fields: the station skips what looks like a step (lines %1).</source>
        <translation>20 項目に足りません。ステップらしい行ですが読み飛ばされます（%1 行目）。</translation>
    </message>
    <message>
        <source>Fewer than 20 fields: skipped as a remark (lines %1).</source>
        <translation>20 項目に足りません。注釈として読み飛ばされます（%1 行目）。</translation>
    </message>
    <message>
        <source>More than 65,536 characters: the station skips them (lines %1).</source>
        <translation>65,536 文字を超えます。読み飛ばされます（%1 行目）。</translation>
    </message>
    <message>
        <source>The table has 200 rows: the steps behind them are not loaded (lines %1).</source>
        <translation>表は 200 行です。その後のステップは読み込まれません（%1 行目）。</translation>
    </message>
    <message>
        <source>The cell is at its set point %1 already: the ramp has no rate, never ends by itself and sends the same again every minute.</source>
        <translation>セルはすでに設定値 %1 にあります。変化率が 0 のため自分では終わらず、毎分同じ値を送り続けます。</translation>
    </message>
    <message>
        <source>A new ramp begins while that of step %1 still runs: it has got to %2 of %3 deg C.</source>
        <translation>ステップ %1 の昇降温の途中で新しい昇降温が始まります（%3 ℃ のうち %2 まで）。</translation>
    </message>
    <message>
        <source>The ramp to %1 deg C may still run when the step ends, and be cut short by the next one: it has got to %2 by then.</source>
        <translation>%1 ℃ への昇降温がステップの終わりに残り、次の昇降温で打ち切られることがあります（それまでに %2）。</translation>
    </message>
    <message>
        <source>The ramp may send %1 deg C once more when the step is over: a rounding, and no change.</source>
        <translation>ステップの後に %1 ℃ をもう一度送ることがあります。丸めによるもので、温度は変わりません。</translation>
    </message>
    <message>
        <source>The ramp begins so soon after another one that the panel may still show what was before: %1 deg C is taken for its start.</source>
        <translation>前の昇降温の直後に始まるため、表示がまだ前の値のことがあります。始まりは %1 ℃ とみなします。</translation>
    </message>
    <message>
        <source>The ramp to %1 deg C starts from what the panel shows then, which nobody has told here (--start): counted as 0. %2</source>
        <translation>%1 ℃ への昇降温はそのときの表示から始まりますが、指定がありません (--start)。0 とみなします。%2</translation>
    </message>
    <message>
        <source>The panel shows no temperature: the ramp to %1 deg C starts from 0. %2</source>
        <translation>表示に温度がありません。%1 ℃ への昇降温は 0 から始まります。%2</translation>
    </message>
    <message>
        <source>It is not too fast from there.</source>
        <translation>そこからでも速すぎません。</translation>
    </message>
    <message>
        <source>From less than %1 it is refused.</source>
        <translation>%1 より低いと拒否されます。</translation>
    </message>
    <message>
        <source>The ramp from %1 to %2 deg C in %3 min is refused: too short a time for any number. The program goes on without it.</source>
        <translation>%1 から %2 ℃ への %3 分の昇降温は拒否されます。時間が短すぎます。プログラムはそのまま進みます。</translation>
    </message>
    <message>
        <source>The ramp from %1 to %2 deg C in %3 min is refused: it would rise by %4 a minute, and %5 is the limit. The program goes on without it. It takes %6 min at the least.</source>
        <translation>%1 から %2 ℃ への %3 分の昇温は拒否されます。毎分 %4 上がり、限度は %5 です。プログラムはそのまま進みます。少なくとも %6 分かかります。</translation>
    </message>
    <message>
        <source>The step takes %1 s, less than a polling round (%2 s): its shutters may wait for a controller&apos;s reply until the next step overtakes them.</source>
        <translation>ステップは %1 秒で、ポーリング一巡 (%2 秒) より短く、シャッターが調節計の応答を待つ間に次のステップに追い越されることがあります。</translation>
    </message>
    <message>
        <source>The program waits here for the operator with open shutters: %1.</source>
        <translation>シャッターを開けたまま操作者を待ちます: %1。</translation>
    </message>
    <message>
        <source>A hold sets no set points; the station leaves out those of: %1.</source>
        <translation>待機点の設定値は送られません: %1。</translation>
    </message>
    <message>
        <source>The program ends in step %1, within the group: it is played once, not %2 times.</source>
        <translation>プログラムはグループの中のステップ %1 で終わります。%2 回でなく 1 回だけ実行されます。</translation>
    </message>
    <message>
        <source>Step 200 is played, but the total shown leaves it out, and its group is played once whatever its repeat count.</source>
        <translation>ステップ 200 は実行されますが、総時間に入らず、そのグループは回数によらず 1 回だけです。</translation>
    </message>
    <message>
        <source>Steps without a group are one too: steps %1 to %2 are played %3 times.</source>
        <translation>グループなしのステップも一つのまとまりです。ステップ %1～%2 が %3 回実行されます。</translation>
    </message>
    <message>
        <source>A repeat count of %1: the group is played once.</source>
        <translation>繰返し回数が %1 です。グループは 1 回実行されます。</translation>
    </message>
    <message>
        <source>The repeat count %1 counts for nothing: that of the group&apos;s first step does (step %2: %3).</source>
        <translation>繰返し回数 %1 は使われません。グループの最初のステップのもの（ステップ %2: %3）が使われます。</translation>
    </message>
    <message>
        <source>%1 is a group&apos;s name like any other; no group is &quot;---NoGroup---&quot;.</source>
        <translation>%1 は普通のグループ名です。グループなしは &quot;---NoGroup---&quot; です。</translation>
    </message>
    <message>
        <source>The group %1 was there before: this is another one, repeated by itself.</source>
        <translation>グループ %1 は前にもあります。これは別のグループで、別に繰り返されます。</translation>
    </message>
    <message>
        <source>The time is 0, so the program ends before this step: its shutters and set points are not set.</source>
        <translation>時間が 0 のため、プログラムはこのステップの前で終わります。シャッターも設定値も送られません。</translation>
    </message>
    <message>
        <source>The program ends at step %1, whose time is 0: what follows up to step %2 is never reached.</source>
        <translation>時間が 0 のステップ %1 でプログラムが終わります。ステップ %2 までの残りは実行されません。</translation>
    </message>
    <message>
        <source>More than 20 fields, of which the station takes the first 20: a blank in a group&apos;s name or in a set point shifts what follows.</source>
        <translation>20 項目を超えます。最初の 20 が使われます。グループ名や設定値の中の空白は以降をずらします。</translation>
    </message>
    <message>
        <source>Some characters cannot be read: the file was written in another encoding.</source>
        <translation>読めない文字があります。別の文字コードで書かれたファイルです。</translation>
    </message>
    <message>
        <source>The line is numbered %1 where %2 is due: lines fill the table in their order, whatever their numbers.</source>
        <translation>行番号が %1 です（%2 のはず）。番号によらず、並んだ順に表に入ります。</translation>
    </message>
    <message>
        <source>The set point %1 is not a number and counts as 0: the channel is left alone.%2</source>
        <translation>設定値 %1 は数値でなく、0 とみなされます。チャネルはそのままです。%2</translation>
    </message>
    <message>
        <source>The set point %1 is below 0: the channel is left alone.</source>
        <translation>設定値 %1 は負です。チャネルはそのままです。</translation>
    </message>
    <message>
        <source>The set point %1 takes more than the six characters of a controller&apos;s message.</source>
        <translation>設定値 %1 は調節計への 6 文字に収まりません。</translation>
    </message>
    <message>
        <source>The shutter&apos;s %1 is neither 0 nor 1, and counts as open.</source>
        <translation>シャッターの %1 は 0 でも 1 でもなく、開とみなされます。</translation>
    </message>
    <message>
        <source>The shutter&apos;s %1 is neither 0 nor 1, and counts as closed.</source>
        <translation>シャッターの %1 は 0 でも 1 でもなく、閉とみなされます。</translation>
    </message>
    <message>
        <source>The time %1 is not a number and counts as 0.%2</source>
        <translation>時間 %1 は数値でなく、0 とみなされます。%2</translation>
    </message>
    <message>
        <source>The time %1 is not a number and counts as 0: the program ends here.%2</source>
        <translation>時間 %1 は数値でなく、0 とみなされます。プログラムはここで終わります。%2</translation>
    </message>
    <message>
        <source>The table keeps six digits of the time %1: it plays %2 s.</source>
        <translation>表は時間 %1 の 6 桁だけを保ちます。%2 秒になります。</translation>
    </message>
    <message>
        <source>The repeat count %1 is not a whole number and counts as 0: a group that begins here is played once.%2</source>
        <translation>繰返し回数 %1 は整数でなく、0 とみなされます。ここで始まるグループは 1 回です。%2</translation>
    </message>
    <message>
        <source> Is it %1?</source>
        <translation> %1 のことですか。</translation>
    </message>
    <message>
        <source>The step begins after %1, and it or its repeats do not end within a million years.</source>
        <translation>%1 後に始まり、百万年たっても終わりません。</translation>
    </message>
    <message>
        <source>The check stops here, after %1: more than 20,000 different steps or 50,000 set points. What follows is not looked at.</source>
        <translation>%1 で打ち切ります。異なるステップが 20,000、または設定値が 50,000 を超えます。以降は見ていません。</translation>
    </message>
    <message>
        <source>The program ends with open shutters, and the station leaves them so: %1.</source>
        <translation>シャッターが開いたまま終わり、そのままになります: %1。</translation>
    </message>
    <message>
        <source>The ramp still runs when the program ends, and sends %1 deg C every minute until somebody stops it.</source>
        <translation>プログラムの終わりに昇降温が残り、止めるまで毎分 %1 ℃ を送ります。</translation>
    </message>
    <message>
        <source>The ramp still runs when the program ends: it goes on from %1 to %2 deg C.</source>
        <translation>プログラムの終わりに昇降温が残り、%1 から %2 ℃ へ続きます。</translation>
    </message>
    <message>
        <source>These stay hot when the program is over: %1 deg C.</source>
        <translation>プログラムの後も高温のままです: %1 ℃。</translation>
    </message>
    <message>
        <source>%1 d %2</source>
        <translation>%1 日 %2</translation>
    </message>
    <message>
        <source>%1 + operator</source>
        <translation>%1 + 操作者</translation>
    </message>
    <message>
        <source>today, %1</source>
        <translation>今日 %1</translation>
    </message>
    <message>
        <source>tomorrow, %1</source>
        <translation>明日 %1</translation>
    </message>
    <message>
        <source>The row was not that of the file when Run was pressed.</source>
        <translation>開始のとき、この行はファイルのものと違いました。</translation>
    </message>
    <message>
        <source>The operator stopped the program here.</source>
        <translation>操作者がここで停止しました。</translation>
    </message>
    <message>
        <source>The station ended here, while the program ran.</source>
        <translation>プログラムの途中、ここで操作盤が終わりました。</translation>
    </message>
    <message>
        <source>The journal ends here, while the program runs.</source>
        <translation>プログラムの途中、ここでジャーナルが終わっています。</translation>
    </message>
    <message>
        <source>The controller did not answer.</source>
        <translation>調節計が応答しませんでした。</translation>
    </message>
    <message>
        <source>The controller answered with an error.</source>
        <translation>調節計がエラーを返しました。</translation>
    </message>
    <message>
        <source>The link to the adapter was lost: nothing is sent until the station is started again.</source>
        <translation>アダプターとの接続が切れました。操作盤を起動し直すまで何も送られません。</translation>
    </message>
    <message>
        <source>A reply was awaited for more than a second; nothing is sent meanwhile.</source>
        <translation>応答を 1 秒以上待ちました。その間は何も送られません。</translation>
    </message>
    <message>
        <source>Another controller&apos;s reading came: temperatures stand under wrong channels from here on.</source>
        <translation>別の調節計の測定値が来ました。ここから温度が違うチャネルに入ります。</translation>
    </message>
    <message>
        <source>A line came although none was awaited, such as %1: readings may stand under wrong channels.</source>
        <translation>待っていない行 (%1 など) が来ました。測定値が違うチャネルに入ることがあります。</translation>
    </message>
    <message>
        <source>The temperature control was turned off: no set point is sent.</source>
        <translation>温度制御が切られました。設定値は送られません。</translation>
    </message>
    <message>
        <source>The channel was taken into use or out of it.</source>
        <translation>チャネルの使用が切り替えられました。</translation>
    </message>
    <message>
        <source>The PC slept for %1 s.</source>
        <translation>PC が %1 秒スリープしました。</translation>
    </message>
    <message>
        <source>The station was held up for %1 s.</source>
        <translation>操作盤が %1 秒止まりました。</translation>
    </message>
    <message>
        <source>The PC&apos;s clock was set by %1 s; no step moves by it.</source>
        <translation>PC の時計が %1 秒変えられました。ステップは動きません。</translation>
    </message>
    <message>
        <source>%1 lines of the journal had no room.</source>
        <translation>ジャーナルの %1 行が書けませんでした。</translation>
    </message>
    <message>
        <source>A reply came in pieces.</source>
        <translation>応答が分かれて来ました。</translation>
    </message>
    <message>
        <source>A reply was no reading: %1.</source>
        <translation>測定値でない応答: %1。</translation>
    </message>
    <message>
        <source>%1 deg C were measured where the set point was %2.</source>
        <translation>設定値 %2 ℃ のとき %1 ℃ でした。</translation>
    </message>
    <message>
        <source>A ramp to %1 deg C in %2 min was begun by hand.</source>
        <translation>%1 ℃ への %2 分の昇降温が手で始められました。</translation>
    </message>
    <message>
        <source>The ramp from %1 to %2 deg C in %3 min was refused, and the program went on without it.</source>
        <translation>%1 から %2 ℃ への %3 分の昇降温が拒否され、プログラムはそのまま進みました。</translation>
    </message>
    <message>
        <source>%1 deg C was sent where %2 was due.</source>
        <translation>%2 ℃ のところ %1 ℃ が送られました。</translation>
    </message>
    <message>
        <source>The set point %1 deg C was sent %2 s after it was due.</source>
        <translation>設定値 %1 ℃ が %2 秒遅れて送られました。</translation>
    </message>
    <message>
        <source>The ramp to %1 deg C was stopped by hand.</source>
        <translation>%1 ℃ への昇降温が手で止められました。</translation>
    </message>
    <message>
        <source>The ramp to %1 deg C was not begun.</source>
        <translation>%1 ℃ への昇降温が始まりませんでした。</translation>
    </message>
    <message>
        <source>The set point %1 deg C was due %2 s before and never sent.</source>
        <translation>設定値 %1 ℃ は %2 秒前に送るはずでしたが、送られませんでした。</translation>
    </message>
    <message>
        <source>The set point %1 deg C was not sent: the link to the adapter was down.</source>
        <translation>設定値 %1 ℃ は送られませんでした。アダプターと接続がありません。</translation>
    </message>
    <message>
        <source>The row was edited while the program ran, %1 s after its start.</source>
        <translation>開始から %1 秒後、実行中に行が変更されました。</translation>
    </message>
    <message>
        <source>The step began where pass %1 of step %2 was due.</source>
        <translation>ステップ %2 の %1 回目のはずのところでこのステップが始まりました。</translation>
    </message>
    <message>
        <source>The step began %1 s late.</source>
        <translation>ステップが %1 秒遅れて始まりました。</translation>
    </message>
    <message>
        <source>The shutters were set to %1 where the step has %2.</source>
        <translation>シャッターが %2 のところ %1 にされました。</translation>
    </message>
    <message>
        <source>The shutter command was not sent: the link to the adapter was down.</source>
        <translation>シャッター命令は送られませんでした。アダプターと接続がありません。</translation>
    </message>
    <message>
        <source>The shutters were commanded %1 s after the step began: a controller&apos;s reply was awaited.</source>
        <translation>シャッター命令はステップの %1 秒後でした。調節計の応答を待っていました。</translation>
    </message>
    <message>
        <source>The program was paused %1 s after the step began.</source>
        <translation>ステップの %1 秒後に一時停止されました。</translation>
    </message>
    <message>
        <source>The shutter command never left: the step was over before the bus was free.</source>
        <translation>シャッター命令は送られませんでした。バスが空く前にステップが終わりました。</translation>
    </message>
    <message>
        <source>it is missing, no plain file, or not to be opened</source>
        <translation>存在しない、通常のファイルでない、または開けません</translation>
    </message>
    <message>
        <source>it is larger than any journal</source>
        <translation>どのジャーナルよりも大きいファイルです</translation>
    </message>
    <message>
        <source>it tells of no run of a program</source>
        <translation>プログラムの実行がありません</translation>
    </message>
    <message>
        <source>it tells of %1 runs</source>
        <translation>実行は %1 回です</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>Steps, as they were played</source>
        <translation>実行されたステップ</translation>
    </message>
    <message>
        <source>elapsed</source>
        <translation>経過</translation>
    </message>
    <message>
        <source>late s</source>
        <translation>遅れ秒</translation>
    </message>
    <message>
        <source>step</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>回</translation>
    </message>
    <message>
        <source>open</source>
        <translation>開</translation>
    </message>
    <message>
        <source>waited</source>
        <translation>待ち秒</translation>
    </message>
    <message>
        <source>%1 set points: %2</source>
        <translation>%1 の設定値: %2</translation>
    </message>
    <message>
        <source>off its set point by deg C (at the most): %1</source>
        <translation>設定値との差 ℃（最大）: %1</translation>
    </message>
    <message>
        <source>held %1 s</source>
        <translation>待機 %1 秒</translation>
    </message>
    <message>
        <source>paused %1 s</source>
        <translation>一時停止 %1 秒</translation>
    </message>
    <message>
        <source>... and %1 steps more; --csv has them all</source>
        <translation>…ほか %1 ステップ。--csv には全部あります</translation>
    </message>
    <message>
        <source> (%1 times)</source>
        <translation>（%1 回）</translation>
    </message>
    <message>
        <source>note</source>
        <translation>注記</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>error</source>
        <translation>誤り</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>%1 行目</translation>
    </message>
    <message>
        <source>step %1</source>
        <translation>ステップ %1</translation>
    </message>
    <message>
        <source>pass %1</source>
        <translation>%1 回目</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>問題はありません。</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>所見</translation>
    </message>
    <message>
        <source>played to its end</source>
        <translation>最後まで実行</translation>
    </message>
    <message>
        <source>stopped by the operator</source>
        <translation>操作者が停止</translation>
    </message>
    <message>
        <source>broken off</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>still running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>steps in the table: %1; starts of steps: %2; holds: %3</source>
        <translation>表のステップ: %1、ステップの開始: %2、待機点: %3</translation>
    </message>
    <message>
        <source>total shown: %1 s; plays: %2</source>
        <translation>総時間の表示: %1 秒、実際: %2</translation>
    </message>
    <message>
        <source>Run at %1; ends %2</source>
        <translation>開始 %1、終了 %2</translation>
    </message>
    <message>
        <source>run %1 of %2 in %3</source>
        <translation>%3 の実行 %1 / %2</translation>
    </message>
    <message>
        <source>Run at %1; %2 after %3</source>
        <translation>開始 %1、%3 で%2</translation>
    </message>
    <message>
        <source>planned: %1; starts of steps: %2; latest by %3 s; shutters waited %4 s at the most</source>
        <translation>計画: %1、ステップの開始: %2、最大の遅れ %3 秒、シャッターの待ちは最大 %4 秒</translation>
    </message>
    <message>
        <source>%1 not sent</source>
        <translation>%1 未送信</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1（計画 %2）</translation>
    </message>
    <message>
        <source>%1 ... %2 (%3 set points)</source>
        <translation>%1 … %2（設定値 %3 個）</translation>
    </message>
    <message>
        <source>%1 (not told)</source>
        <translation>%1（指定なし）</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>拒否</translation>
    </message>
    <message>
        <source>%1 %2 to %3 deg C in %4 min: %5</source>
        <translation>%1 %2 → %3 ℃、%4 分: %5</translation>
    </message>
    <message>
        <source>%1 goes on: %2</source>
        <translation>%1 続き: %2</translation>
    </message>
    <message>
        <source>no link</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>never</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>時系列</translation>
    </message>
    <message>
        <source>clock</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>+ operator</source>
        <translation>+ 操作者</translation>
    </message>
    <message>
        <source>... passes %1 to %2 alike: %3 x %4, until %5</source>
        <translation>… %1～%2 回目も同じ: %3 × %4、%5 まで</translation>
    </message>
    <message>
        <source>end</source>
        <translation>終わり</translation>
    </message>
    <message>
        <source>not looked at any further</source>
        <translation>以降は見ていません</translation>
    </message>
    <message>
        <source>Layers, from the substrate up</source>
        <translation>層（基板から上へ）</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>In all: %1; group III on average: %2</source>
        <translation>合計: %1、III 族の平均: %2</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>図</translation>
    </message>
    <message>
        <source>Not everything that is played is in the picture.</source>
        <translation>実行されるものの一部だけが図にあります。</translation>
    </message>
    <message>
        <source>Nearer</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Farther</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>or turn the wheel and drag</source>
        <translation>ホイールで拡大縮小、ドラッグで移動</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the language of these texts, as HTML names it</comment>
        <translation>ja</translation>
    </message>
    <message>
        <source>passes %1 to %2 alike: %3 x %4</source>
        <translation>%1～%2 回目も同じ: %3 × %4</translation>
    </message>
    <message>
        <source>weight</source>
        <translation>重さ</translation>
    </message>
    <message>
        <source>what</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>where</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>why</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>set points, deg C</source>
        <translation>設定値 ℃</translation>
    </message>
    <message>
        <source>in all; group III on average %1</source>
        <translation>合計、III 族の平均 %1</translation>
    </message>
    <message>
        <source>times</source>
        <translation>回数</translation>
    </message>
    <message>
        <source>material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>thickness</source>
        <translation>厚さ</translation>
    </message>
    <message>
        <source>held s</source>
        <translation>待機秒</translation>
    </message>
    <message>
        <source>off its set point by deg C (at the most)</source>
        <translation>設定値との差 ℃（最大）</translation>
    </message>
    <message>
        <source>pass %1 of %2</source>
        <translation>%1 回目 / %2</translation>
    </message>
    <message>
        <source>open: %1</source>
        <translation>開: %1</translation>
    </message>
    <message>
        <source>none open</source>
        <translation>すべて閉</translation>
    </message>
    <message>
        <source>passes alike, not drawn one by one</source>
        <translation>同じ回の繰返し（個別には描いていません）</translation>
    </message>
    <message>
        <source>%1 measured</source>
        <translation>%1 測定</translation>
    </message>
    <message>
        <source>%1 sent</source>
        <translation>%1 送信</translation>
    </message>
    <message>
        <source>Set points in deg C: thin as planned, thick as sent; dotted: measured</source>
        <translation>設定値 ℃: 細線は計画、太線は送信、点線は測定</translation>
    </message>
    <message>
        <source>Set points in deg C</source>
        <translation>設定値 ℃</translation>
    </message>
    <message>
        <source>Open shutters: above as planned, below as sent</source>
        <translation>開いたシャッター: 上は計画、下は送信</translation>
    </message>
    <message>
        <source>Open shutters</source>
        <translation>開いたシャッター</translation>
    </message>
    <message>
        <source>no line tells the temperatures of all channels</source>
        <translation>全チャネルの温度の行がありません</translation>
    </message>
    <message>
        <source>--%1 is given twice</source>
        <translation>--%1 が二度指定されています</translation>
    </message>
    <message>
        <source>--%1 does nothing with %2</source>
        <translation>--%1 は %2 とともには働きません</translation>
    </message>
    <message>
        <source>--layers does nothing with compare but for --html</source>
        <translation>compare の --layers は --html のときだけ働きます</translation>
    </message>
    <message>
        <source>--run does nothing without compare</source>
        <translation>--run は compare のときだけ働きます</translation>
    </message>
    <message>
        <source>--%1 %2: no channel is called %3; these are: %4</source>
        <translation>--%1 %2: %3 というチャネルはありません。あるのは: %4</translation>
    </message>
    <message>
        <source>a temperature from -999.9 to 9999.9, or &quot;none&quot;, behind &quot;=&quot;,</source>
        <translation>&quot;=&quot; の後に -999.9 から 9999.9 までの温度か &quot;none&quot; </translation>
    </message>
    <message>
        <source>a temperature from -999.9 to 9999.9</source>
        <translation>-999.9 から 9999.9 までの温度</translation>
    </message>
    <message>
        <source>a file&apos;s name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>The group %1 looks like %2 of step %3 and is another one.</source>
        <translation>グループ %1 はステップ %3 の %2 に似ていますが別のものです。</translation>
    </message>
    <message>
        <source>every step begins up to 10 ms late</source>
        <translation>各ステップは最大 10 ms 遅れます</translation>
    </message>
    <message>
        <source>waits at holds are not counted</source>
        <translation>待機点の待ちは数えません</translation>
    </message>
    <message>
        <source>step %1 is played and not counted (%2 s)</source>
        <translation>ステップ %1 は実行されますが数えません（%2 秒）</translation>
    </message>
    <message>
        <source>The station shows a total of %1 s and plays %2 s: %3.</source>
        <translation>操作盤の総時間は %1 秒、実際は %2 秒です（%3）。</translation>
    </message>
    <message>
        <source>more than 1e+308</source>
        <translation>1e+308 以上</translation>
    </message>
    <message>
        <source>The shutter opens, and its cell has no rate: what it grows is missing from the layers.</source>
        <translation>シャッターが開きますが、セルの成長速度がありません。その分は層に入っていません。</translation>
    </message>
    <message>
        <source>it has more than 1,000 characters</source>
        <translation>1,000 文字を超えます</translation>
    </message>
    <message>
        <source>some characters cannot be read; save the file as UTF-8</source>
        <translation>読めない文字があります。UTF-8 で保存してください</translation>
    </message>
    <message>
        <source>%1 is not a source cell; these are: %2</source>
        <translation>%1 は原料セルではありません。あるのは: %2</translation>
    </message>
    <message>
        <source>%1 has its rate in line %2 already</source>
        <translation>%1 の速度はすでに %2 行目にあります</translation>
    </message>
    <message>
        <source>behind %1 stands one rate, and nothing else but a remark (#)</source>
        <translation>%1 の後に書けるのは速度一つと注釈 (#) だけです</translation>
    </message>
    <message>
        <source>the rate of %1 is %2, where a number from 0 to 1000 nm/s is wanted.%3</source>
        <translation>%1 の速度が %2 です。0～1000 nm/s の数が必要です。%3</translation>
    </message>
    <message>
        <source>it is larger than 64 KiB</source>
        <translation>64 KiB を超えています</translation>
    </message>
</context>
</TS>
